#include "examples.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string_view>
#include <vector>

#include "call_words.h"
#include "iso_date.h"
#include "json_value.h"
#include "plain_text.h"
#include "signature.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

constexpr std::string_view kIndent = "  ";

/// A date as typed day first in the Buddhist Era, the convention of the examples.
std::string TypedDate(OleDate date) {
  std::string typed = std::to_string(date.Day()) + "/" + std::to_string(date.Month()) + "/" +
                      std::to_string(date.Year() + kBuddhistOffset);
  const std::string iso = IsoDate(date);
  return typed += iso.substr(std::string_view("2024-01-15").size());
}

/// The word for an argument.
std::string WordFor(const Value& value, const TypeInfo& type) {
  if (const auto* date = std::get_if<OleDate>(&value)) return TypedDate(*date);
  return type.enumeration == nullptr ? PlainText(value) : Literal(value, type);
}

/// Whether a word can express an argument: it must be present, and a text must be possible on a
/// command line.
bool IsWord(const Value& value) {
  const auto* text = std::get_if<Text>(&value);
  if (text == nullptr) {
    return !std::holds_alternative<Omitted>(value) && !std::holds_alternative<TextList>(value) &&
           !std::holds_alternative<Object>(value);
  }
  return text->find(u'\0') == Text::npos && FromUtf8(Utf8(*text)) == *text;
}

std::string CallLine(const ClassInfo& owner, const OperationInfo& operation,
                     const Example& example) {
  std::vector<std::string> words;
  for (std::size_t i = 0; i < example.arguments.size(); ++i) {
    words.push_back(WordFor(example.arguments[i], operation.parameters[i].type));
  }
  const bool guarded = std::ranges::any_of(words, [](const std::string& word) {
    return IsOption(word) || word == kEndOfOptions || !ArgumentName(word).empty();
  });
  std::string line = "zq7 call --example " + QualifiedName(owner, operation.name);
  if (guarded) line.append(" ").append(kEndOfOptions);
  for (const std::string& word : words) line.append(" ").append(ShellWord(word));
  return line;
}

Json Arguments(const std::vector<Value>& values) {
  Json arguments = Json::array();
  for (const Value& value : values) arguments.push_back(JsonOfValue(value));
  return arguments;
}

/// The batch lines that create an object and show the result of its last call.
std::string BatchLines(const ClassInfo& owner, const OperationInfo& operation,
                       const Example& example) {
  std::vector<ZQ7Standard::Automation::Call> calls = example.before;
  calls.push_back({operation.name, example.arguments});
  std::string lines = std::string(kIndent) + "zq7 batch --example <<'END' | tail -n 1\n";
  for (const auto& call : calls) {
    Json line = Json::object();
    if (&call == calls.data()) line["class"] = owner.name;
    line["object"] = "it";
    line["call"] = call.operation;
    if (!call.arguments.empty()) line["args"] = Arguments(call.arguments);
    lines.append(WriteJson(line)).append("\n");
  }
  return lines + "END\n";
}

std::string ResultLines(const Value& result) {
  if (std::holds_alternative<Omitted>(result)) return "(nothing)\n";
  if (result == Value(Text())) return "(the empty text)\n";
  return PlainLines(result);
}

std::string Indented(const std::string& lines) {
  std::string result;
  for (std::size_t i = 0; i < lines.size();) {
    const std::size_t end = lines.find('\n', i) + 1;
    result.append(kIndent).append(lines, i, end - i);
    i = end;
  }
  return result;
}

std::string ErrorText(int number) {
  return "run-time error " + std::to_string(number);
}

std::string Lines(const ClassInfo& owner, const OperationInfo& operation, const Example& example) {
  const bool as_call = example.before.empty() && std::ranges::all_of(example.arguments, IsWord);
  if (!as_call) {
    const Json result = {{"result", JsonOfValue(example.result)}};
    return BatchLines(owner, operation, example) +
           Indented((example.error == 0 ? WriteJson(result) : ErrorText(example.error)) + "\n");
  }
  return Indented(
      CallLine(owner, operation, example) + "\n" +
      (example.error == 0 ? ResultLines(example.result) : ErrorText(example.error) + "\n"));
}

}  // namespace

std::string ExampleLines(const ClassInfo& owner, const OperationInfo& operation) {
  std::string lines;
  for (const Example& example : operation.examples) {
    lines.append(lines.empty() ? "" : "\n").append(Lines(owner, operation, example));
  }
  return lines;
}

}  // namespace ZQ7Tool
