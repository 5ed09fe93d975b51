#include "worked_example.h"

#include <nlohmann/json.hpp>
#include <variant>

#include "json_text.h"
#include "json_value.h"
#include "markdown.h"
#include "signature.h"

namespace ZQ7Pages {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;
using ZQ7Tool::WriteJson;

/// An object that the host makes first: an instance of a class, or the picture of a file.
std::string MadeObject(const Text& text, const TypeInfo& type) {
  const std::string owner(type.object_class);
  return owner == Utf8(text) ? owner : owner + "(" + WriteJson(ZQ7Tool::JsonOfText(text)) + ")";
}

std::string Written(const Value& value, const TypeInfo& type) {
  if (const auto* text = std::get_if<Text>(&value)) {
    return type.type == Type::kObject ? MadeObject(*text, type)
                                      : WriteJson(ZQ7Tool::JsonOfText(*text));
  }
  if (std::holds_alternative<Null>(value)) return "null";
  if (std::holds_alternative<TextList>(value)) return WriteJson(ZQ7Tool::JsonOfValue(value));
  return ZQ7Tool::Literal(value, type);
}

std::string Written(const OperationInfo& operation, const std::vector<Value>& arguments) {
  std::string call = std::string(operation.name) + "(";
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    call.append(i == 0 ? "" : ", ").append(Written(arguments[i], operation.parameters[i].type));
  }
  return call + ")";
}

}  // namespace

std::string ExampleCalls(const ClassInfo& owner, const OperationInfo& operation,
                         const Example& example) {
  std::string calls;
  for (const Call& before : example.before) {
    calls += Written(*FindOperation(owner, before.operation), before.arguments) + "; ";
  }
  return calls + Written(operation, example.arguments);
}

std::string ExampleResult(const OperationInfo& operation, const Example& example) {
  if (example.error != 0) {
    return Link("error " + std::to_string(example.error), "../errors.md");
  }
  if (std::holds_alternative<Omitted>(example.result)) return "";
  return Code(Written(example.result, operation.result));
}

}  // namespace ZQ7Pages
