#include "plain_text.h"

#include <ZQ7Standard/automation/catalogue.h>

#include <array>
#include <charconv>
#include <cmath>
#include <concepts>

#include "iso_date.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

/// Numbers of ordinary size are written out, others with an exponent.
std::string FloatingText(std::floating_point auto number) {
  if (std::isnan(number)) return "NaN";
  if (std::isinf(number)) return number > 0 ? "Infinity" : "-Infinity";
  const auto size = std::abs(number);
  const bool ordinary = size == 0 || (size >= 1e-5 && size < 1e15);
  const auto format = ordinary ? std::chars_format::fixed : std::chars_format::scientific;
  std::array<char, 64> text;
  return {text.begin(), std::to_chars(text.begin(), text.end(), number, format).ptr};
}

struct PlainVisitor {
  std::string operator()(Omitted /*none*/) const { return ""; }
  std::string operator()(Null /*null*/) const { return ""; }
  std::string operator()(const Text& text) const { return Utf8(text); }
  std::string operator()(bool flag) const { return flag ? "True" : "False"; }
  std::string operator()(std::integral auto number) const { return std::to_string(number); }
  std::string operator()(std::floating_point auto number) const { return FloatingText(number); }
  std::string operator()(OleDate date) const { return IsoDate(date); }
  std::string operator()(Currency amount) const { return Utf8(amount.ToText()); }
  std::string operator()(const TextList& list) const {
    std::string text;
    for (const Text& item : list) text.append(text.empty() ? "" : ", ").append(Utf8(item));
    return text;
  }
  std::string operator()(const Object& object) const { return std::string(object.Class().name); }
};

}  // namespace

std::string PlainText(const Value& value) {
  return std::visit(PlainVisitor{}, value);
}

std::string PlainLines(const Value& result) {
  if (std::holds_alternative<Omitted>(result)) return "";
  const auto* list = std::get_if<TextList>(&result);
  if (list == nullptr) return PlainText(result) + "\n";
  std::string lines;
  for (const Text& item : *list) lines.append(Utf8(item)).append("\n");
  return lines;
}

}  // namespace ZQ7Tool
