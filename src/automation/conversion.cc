#include "automation/conversion.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <type_traits>

#include "automation/instance.h"
#include "base/ascii.h"
#include "base/fields.h"
#include "base/raise.h"
#include "dates/date_math.h"
#include "dates/date_text.h"
#include "dates/eras.h"
#include "numbers/number_text.h"

namespace ZQ7Standard::Automation {
namespace {

constexpr int kSingleDigits = 7;

template <typename T>
concept Arithmetic = std::is_arithmetic_v<T>;

/// `value` as shown in an error message.
struct ShownVisitor {
  ErrorInput operator()(const Text& text) const { return text; }
  ErrorInput operator()(bool flag) const { return TextView(flag ? u"True" : u"False"); }
  ErrorInput operator()(const Arithmetic auto& number) const { return number; }
  ErrorInput operator()(OleDate date) const { return date; }
  ErrorInput operator()(Currency amount) const { return amount; }
  ErrorInput operator()(Null /*null*/) const { return TextView(u"a null"); }
  ErrorInput operator()(const TextList& /*list*/) const { return TextView(u"a list"); }
  ErrorInput operator()(const auto& /*object*/) const { return TextView(u"an object"); }
};

Where WhereOf(const Place& place) {
  if (place.call.parameters.empty()) return {place.call.member};
  return {place.call.member, place.call.parameters[place.parameter].name};
}

[[noreturn]] void RaiseOverflow(const Value& value, const Place& place) {
  Raise(Error::kOverflow, WhereOf(place), std::visit(ShownVisitor{}, value));
}

[[noreturn]] void RaiseMismatch(const Value& value, const Place& place) {
  if (std::holds_alternative<Omitted>(value)) Raise(Error::kArgumentNotOptional, WhereOf(place));
  Raise(Error::kTypeMismatch, WhereOf(place), std::visit(ShownVisitor{}, value));
}

/// The text of a number without the blanks around it and its ",".
Text Ungrouped(TextView text) {
  Text number(TrimBack(TrimFront(text)));
  std::erase(number, u',');
  return number;
}

/// The number that the whole text is; nullopt if it is not a number.
std::optional<double> NumberOf(TextView text, const Value& value, const Place& place) {
  const Text number = Ungrouped(text);
  if (!IsNumberText(number)) return std::nullopt;
  const auto read = ReadLeadingNumber(number);
  if (!read) RaiseOverflow(value, place);
  return read;
}

std::optional<OleDate> DateOf(TextView text, ServiceSet& services) {
  return ReadDateText(text, services.Convention(), services.Now().Year());
}

/// A value as a number. A text, which callers try first as something else, must be one.
struct NumberVisitor {
  const Value& value;
  const Place& place;

  double operator()(const Text& text) const {
    if (const auto number = NumberOf(text, value, place)) return *number;
    RaiseMismatch(value, place);
  }
  double operator()(bool flag) const { return flag ? -1 : 0; }
  double operator()(OleDate date) const { return date.Days(); }
  double operator()(Currency amount) const { return amount.ToDouble(); }
  double operator()(const Arithmetic auto& number) const { return number; }
  double operator()(const auto& /*other*/) const { RaiseMismatch(value, place); }
};

/// The digits of a single that are printed.
Decimal SingleDecimal(float number) {
  std::array<char, 32> text;
  const auto end = std::to_chars(text.begin(), text.end(), number, std::chars_format::scientific,
                                 kSingleDigits - 1);
  double rounded = 0;
  std::from_chars(text.begin(), end.ptr, rounded);
  return *ToDecimal(rounded);
}

/// "15/1/2567 9:30:00" in the order and era of the convention.
Text DateText(OleDate date, DateConvention convention) {
  Text text;
  const bool time_alone = static_cast<int>(date.Days()) == 0;
  if (!time_alone) {
    const bool day_first = convention.order == FieldOrder::kDayFirst;
    AppendNumber(text, day_first ? date.Day() : date.Month(), 1);
    text.push_back(u'/');
    AppendNumber(text, day_first ? date.Month() : date.Day(), 1);
    text.push_back(u'/');
    AppendNumber(text, date.Year() + EraDifference(convention.era), 4);
    if (date.TimeOfDay() == 0) return text;
    text.push_back(u' ');
  }
  AppendNumber(text, date.Hour(), 1);
  text.push_back(u':');
  AppendNumber(text, date.Minute(), 2);
  text.push_back(u':');
  AppendNumber(text, date.Second(), 2);
  return text;
}

/// The amount without trailing zeros.
Text AmountText(Currency amount) {
  Text text = amount.ToText();
  text.erase(text.find_last_not_of(u'0') + 1);
  if (text.ends_with(u'.')) text.pop_back();
  return text;
}

/// The amount that `make` returns; its only failure is an amount out of range.
Currency AmountOrOverflow(const auto& make, const Value& value, const Place& place) {
  try {
    return make();
  } catch (const RunTimeError&) {
    RaiseOverflow(value, place);
  }
}

struct TextVisitor {
  const Value& value;
  const Place& place;

  Text operator()(const Text& text) const { return text; }
  Text operator()(Omitted /*missing*/) const { return {}; }
  Text operator()(bool flag) const { return flag ? u"True" : u"False"; }
  Text operator()(OleDate date) const { return DateText(date, place.call.services.Convention()); }
  Text operator()(Currency amount) const { return AmountText(amount); }
  Text operator()(float number) const {
    if (!std::isfinite(number)) RaiseOverflow(value, place);
    return ShortestText(SingleDecimal(number));
  }
  Text operator()(const Arithmetic auto& number) const {
    const auto decimal = ToDecimal(number);
    if (!decimal) RaiseOverflow(value, place);
    return ShortestText(*decimal);
  }
  Text operator()(const auto& /*other*/) const { RaiseMismatch(value, place); }
};

}  // namespace

double ToDouble(const Value& value, const Place& place) {
  if (const auto* number = std::get_if<double>(&value)) return *number;
  return std::visit(NumberVisitor{value, place}, value);
}

float ToSingle(const Value& value, const Place& place) {
  const double number = ToDouble(value, place);
  const auto single = static_cast<float>(number);
  if (std::isinf(single) && !std::isinf(number)) RaiseOverflow(value, place);
  return single;
}

template <typename Integer>
Integer ToInteger(const Value& value, const Place& place) {
  if (const auto* same = std::get_if<Integer>(&value)) return *same;
  const auto integer = RoundToInteger<Integer>(ToDouble(value, place));
  if (!integer) RaiseOverflow(value, place);
  return *integer;
}

template std::int16_t ToInteger(const Value& value, const Place& place);
template std::int32_t ToInteger(const Value& value, const Place& place);

template <>
std::uint8_t ToInteger(const Value& value, const Place& place) {
  constexpr std::uint8_t kMax = std::numeric_limits<std::uint8_t>::max();
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? kMax : 0;
  const auto integer = RoundToInteger<std::int32_t>(ToDouble(value, place));
  if (!integer || *integer < 0 || *integer > kMax) RaiseOverflow(value, place);
  return static_cast<std::uint8_t>(*integer);
}

bool ToBoolean(const Value& value, const Place& place) {
  if (const auto* flag = std::get_if<bool>(&value)) return *flag;
  if (const auto* text = std::get_if<Text>(&value)) {
    const TextView word = TrimBack(TrimFront(*text));
    if (EqualsIgnoringAsciiCase(word, u"True")) return true;
    if (EqualsIgnoringAsciiCase(word, u"False")) return false;
  }
  return ToDouble(value, place) != 0;
}

OleDate ToDate(const Value& value, const Place& place) {
  if (const auto* date = std::get_if<OleDate>(&value)) return *date;
  if (const auto* text = std::get_if<Text>(&value)) {
    if (const auto date = DateOf(*text, place.call.services)) return *date;
  }
  const double days = ToDouble(value, place);
  if (!IsInRange(days)) RaiseOverflow(value, place);
  return OleDate(days);
}

Currency ToCurrency(const Value& value, const Place& place) {
  if (const auto* amount = std::get_if<Currency>(&value)) return *amount;
  if (const auto* text = std::get_if<Text>(&value)) {
    const Text number = Ungrouped(*text);
    const bool exponent = number.find_first_of(u"eEdD") != Text::npos;
    if (IsNumberText(number) && !exponent) {
      return AmountOrOverflow([&] { return Currency::FromText(number); }, value, place);
    }
  }
  const double number = ToDouble(value, place);
  return AmountOrOverflow([&] { return Currency(number); }, value, place);
}

Text ToText(const Value& value, const Place& place) {
  return std::visit(TextVisitor{value, place}, value);
}

TextList ToTextList(const Value& value, const Place& place) {
  if (const auto* list = std::get_if<TextList>(&value)) return *list;
  RaiseMismatch(value, place);
}

std::shared_ptr<void> ToInstance(const Value& value, std::string_view class_name,
                                 const Place& place) {
  if (const auto* object = std::get_if<Object>(&value)) {
    if (object->Class().name == class_name) return object->Get().object;
  } else if (std::holds_alternative<Null>(value)) {
    return nullptr;
  }
  RaiseMismatch(value, place);
}

}  // namespace ZQ7Standard::Automation
