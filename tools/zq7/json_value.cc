#include "json_value.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>
#include <utility>

#include "iso_date.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

struct SpecialNumber {
  std::string_view name;
  double value;
};

constexpr std::array<SpecialNumber, 3> kSpecialNumbers = {{
    {"NaN", std::numeric_limits<double>::quiet_NaN()},
    {"Infinity", std::numeric_limits<double>::infinity()},
    {"-Infinity", -std::numeric_limits<double>::infinity()},
}};

[[noreturn]] void Refuse(const Json& json, const std::string& mistake) {
  constexpr std::size_t kLongest = 60;
  const std::string text = WriteJson(json);
  throw JsonError((text.size() > kLongest ? "a long value" : text) + " is " + mistake);
}

const std::string& StringOf(const Json& json) {
  if (!json.is_string()) Refuse(json, "not a string");
  return json.get_ref<const std::string&>();
}

Value Number(const Json& json) {
  using Limits = std::numeric_limits<std::int32_t>;
  const auto number = json.get<double>();
  const bool fits = number >= Limits::min() && number <= Limits::max();
  if (json.is_number_integer() && fits) return json.get<std::int32_t>();
  return number;
}

Value SpecialNumberNamed(const Json& json) {
  if (json.is_number()) return json.get<double>();
  const auto special = std::ranges::find(kSpecialNumbers, StringOf(json), &SpecialNumber::name);
  if (special == kSpecialNumbers.end()) Refuse(json, "not a double");
  return special->value;
}

OleDate DateOfDays(const Json& days) {
  if (!days.is_number()) Refuse(days, "not a number of days");
  try {
    return OleDate(days.get<double>());
  } catch (const RunTimeError&) {
    Refuse(days, "beyond the range of dates");
  }
}

OleDate DateOfText(const Json& text) {
  const auto date = OleDate::FromIso(StringOf(text));
  if (!date) Refuse(text, R"(not a date such as "2024-01-15 09:30:00")");
  return *date;
}

/// A result passed back has both forms; the days are more precise.
Value DateOf(const Json& object) {
  if (!object.contains("days")) return DateOfText(object["date"]);
  const OleDate date = DateOfDays(object["days"]);
  if (object.contains("date") && IsoDateTime(date) != IsoDateTime(DateOfText(object["date"]))) {
    Refuse(object, "two different dates");
  }
  return date;
}

/// The UTF-16 text of code units such as "d83d 0041", with blanks only between them.
Text TextOfUnits(const Json& json) {
  constexpr std::size_t kDigits = 4;
  std::string_view rest = StringOf(json);
  Text text;
  while (!rest.empty()) {
    if (!text.empty()) rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    const std::string_view digits = rest.substr(0, kDigits);
    rest.remove_prefix(digits.size());
    std::uint16_t unit = 0;
    const auto read = std::from_chars(digits.begin(), digits.end(), unit, 16);
    const bool whole = digits.size() == kDigits && read.ptr == digits.end();
    if (!whole || !(rest.empty() || rest.starts_with(' '))) {
      Refuse(json, R"(not UTF-16 such as "d83d 0041")");
    }
    text += static_cast<char16_t>(unit);
  }
  return text;
}

std::string UnitsOf(TextView text) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string units;
  for (const char16_t unit : text) {
    if (!units.empty()) units += ' ';
    for (const int shift : {12, 8, 4, 0}) units += kDigits[(unit >> shift) & 0xF];
  }
  return units;
}

bool IsUnits(const Json& json) {
  return json.is_object() && json.size() == 1 && json.contains("utf16");
}

Text TextOf(const Json& json) {
  return IsUnits(json) ? TextOfUnits(json["utf16"]) : FromUtf8(StringOf(json));
}

Value CurrencyOf(const Json& json) {
  try {
    return Currency::FromText(FromUtf8(StringOf(json)));
  } catch (const RunTimeError&) {
    Refuse(json, R"(not an amount such as "10.3000")");
  }
}

Value ObjectOf(const Json& json, const NamedObjects& objects) {
  const auto found = objects.find(StringOf(json));
  if (found == objects.end()) Refuse(json, "not the name of an object");
  return found->second;
}

/// The value of an object with a single key that names its type, or the two of a date.
Value Tagged(const Json& json, const NamedObjects& objects) {
  const bool date = json.contains("date") || json.contains("days");
  const bool both = json.contains("date") && json.contains("days");
  if (json.size() == (both ? 2 : 1)) {
    if (date) return DateOf(json);
    if (json.contains("currency")) return CurrencyOf(json["currency"]);
    if (json.contains("double")) return SpecialNumberNamed(json["double"]);
    if (json.contains("object")) return ObjectOf(json["object"], objects);
  }
  Refuse(json, "not a value");
}

TextList ListOf(const Json& json) {
  TextList list;
  for (const Json& item : json) list.push_back(TextOf(item));
  return list;
}

/// A single as the double that its shortest text reads as, so that it is written as that text.
double AsPrinted(float number) {
  std::array<char, 32> text;
  const auto end = std::to_chars(text.begin(), text.end(), number);
  double printed = 0;
  std::from_chars(text.begin(), end.ptr, printed);
  return printed;
}

struct JsonVisitor {
  const NamedObjects& objects;

  Json operator()(Omitted /*none*/) const { return nullptr; }
  Json operator()(Null /*null*/) const { return nullptr; }
  Json operator()(const Text& text) const { return JsonOfText(text); }
  Json operator()(bool flag) const { return flag; }
  Json operator()(std::integral auto number) const { return number; }
  Json operator()(float number) const {
    return (*this)(std::isfinite(number) ? AsPrinted(number) : static_cast<double>(number));
  }
  Json operator()(double number) const {
    if (std::isfinite(number)) return number;
    const auto special = std::ranges::find_if(kSpecialNumbers, [&](const SpecialNumber& row) {
      return row.value == number || std::isnan(number);
    });
    return {{"double", special->name}};
  }
  Json operator()(OleDate date) const {
    const double days = date.Days();
    const bool whole = days == std::trunc(days);
    return {{"date", IsoDateTime(date)},
            {"days", whole ? Json(static_cast<std::int32_t>(days)) : Json(days)}};
  }
  Json operator()(Currency amount) const { return {{"currency", Utf8(amount.ToText())}}; }
  Json operator()(const TextList& list) const {
    Json items = Json::array();
    for (const Text& item : list) items.push_back(JsonOfText(item));
    return items;
  }
  Json operator()(const Object& object) const {
    const auto named = std::ranges::find(objects, object, &NamedObjects::value_type::second);
    return {{"object", named == objects.end() ? Json(nullptr) : Json(named->first)}};
  }
};

}  // namespace

Value ValueOfJson(const Json& json, const NamedObjects& objects) {
  if (json.is_null()) return Omitted{};
  if (json.is_boolean()) return json.get<bool>();
  if (json.is_number()) return Number(json);
  if (json.is_string() || IsUnits(json)) return TextOf(json);
  return json.is_array() ? Value(ListOf(json)) : Tagged(json, objects);
}

Json JsonOfText(TextView text) {
  std::string utf8 = Utf8(text);
  if (FromUtf8(utf8) == text) return utf8;
  return {{"utf16", UnitsOf(text)}};
}

Json JsonOfValue(const Value& value, const NamedObjects& objects) {
  return std::visit(JsonVisitor{objects}, value);
}

}  // namespace ZQ7Tool
