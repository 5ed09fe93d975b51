#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>

#include "base/ascii.h"
#include "base/case_mapping.h"
#include "base/fields.h"
#include "base/raise.h"
#include "base/search.h"
#include "numbers/number_text.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

constexpr TextView kFillerEnding = u"1";  // ends a sort key that has no number

// No double has more digits before the mark: further left, a zero changes nothing and any other
// digit makes the number too large to read.
constexpr std::size_t kMaxDigits = 309;

template <typename Integer>
constexpr bool Fits(std::int64_t value) {
  return value >= std::numeric_limits<Integer>::min() &&
         value <= std::numeric_limits<Integer>::max();
}

bool IsPositiveNumber(TextView text) {
  return ReadTypedNumber(text) > 0;
}

/// The longest run of digits at the end of `key` that is a number above 0.
TextView DigitTail(TextView key) {
  const auto digits = std::find_if_not(key.rbegin(), key.rend(), IsAsciiDigit) - key.rbegin();
  TextView tail = key.substr(key.size() - std::min(static_cast<std::size_t>(digits), kMaxDigits));
  while (!tail.empty() && !IsPositiveNumber(tail)) tail.remove_prefix(1);
  return tail;
}

/// Whether `c` before `number`, which reads as a number above 0, keeps its value: true for
/// characters that a reader skips, and for "0" before a digit or a point. Only such characters can
/// be repeated without limit.
bool KeepsValue(char16_t c, TextView number) {
  constexpr TextView kPassedOver = u" ,%\t\r\n";
  if (c != u'0') return kPassedOver.find(c) != TextView::npos;
  const char16_t next = TrimFront(number, u" ,%").front();
  return IsAsciiDigit(next) || next == u'.';
}

/// The longest end of `text` that keeps reading as a number above 0 as it grows from the right;
/// empty after a final "0".
TextView NumericSuffix(TextView text) {
  std::size_t start = text.size();
  for (; start > 0; --start) {
    const TextView number = text.substr(start);
    const bool same = !number.empty() && KeepsValue(text[start - 1], number);
    if (!same && !IsPositiveNumber(text.substr(start - 1))) break;
  }
  return text.substr(start);
}

/// `prefix`, `zeros` times "0", `ending`.
Text Joined(TextView prefix, std::size_t zeros, TextView ending) {
  Text key;
  key.reserve(prefix.size() + zeros + ending.size());
  key.append(prefix).append(zeros, u'0').append(ending);
  return key;
}

bool EqualInUpperCase(char16_t a, char16_t b) {
  return ToUpper(a) == ToUpper(b);
}

/// The position of index `at`, counting from 1; 0 for npos.
std::int32_t Position(std::size_t at) {
  return static_cast<std::int32_t>(at + 1);
}

}  // namespace

Text StandardObject::ReverseString(TextView iString) const {
  return {iString.rbegin(), iString.rend()};
}

Text StandardObject::TrimSpaceToOne(TextView inString, bool TrimFront, bool TrimBack) const {
  TextView text = inString;
  if (TrimFront) text = ZQ7Standard::TrimFront(text);
  if (TrimBack) text = ZQ7Standard::TrimBack(text);
  Text single;
  single.reserve(text.size());
  for (const char16_t c : text) {
    if (c != u' ' || !single.ends_with(u' ')) single.push_back(c);
  }
  return single;
}

Text StandardObject::IncreaseString(TextView InputString, TextView AddStringNumber) const {
  const TextView tail = DigitTail(InputString);
  const TextView prefix = InputString.substr(0, InputString.size() - tail.size());
  if (tail.empty()) return Joined(prefix, 0, AddStringNumber);
  const double step = AddStringNumber.empty() ? 1 : std::max(StrVal(AddStringNumber), 0.0);
  const auto value = ToDecimal(StrVal(tail) + step);
  if (!value) Raise(Error::kOverflow, {"IncreaseString", "InputString"}, InputString);
  const Text number = ShortestText(*value);
  return Joined(prefix, tail.size() - std::min(tail.size(), number.size()), number);
}

Text StandardObject::FormatTextSort(TextView InputString, std::int16_t Length) const {
  const TextView suffix = NumericSuffix(InputString);
  if (!suffix.empty() && !Fits<std::int16_t>(std::int64_t{2} * Length)) {
    Raise(Error::kOverflow, {"FormatTextSort", "Length"}, Length);
  }
  const TextView prefix = InputString.substr(0, InputString.size() - suffix.size());
  if (std::cmp_less(Length, prefix.size())) {
    Raise(Error::kInvalidArgument, {"FormatTextSort", "InputString"}, InputString,
          "longer than " + std::to_string(Length));
  }
  const TextView ending = suffix.empty() ? kFillerEnding : suffix;
  const std::size_t room = static_cast<std::size_t>(Length) - prefix.size();
  const std::size_t shown = std::min(room, ending.size());
  Text key = Joined(prefix, room - shown, ending.substr(ending.size() - shown));
  if (!suffix.empty()) std::ranges::transform(key, key.begin(), ToUpper);
  return key;
}

std::int32_t StandardObject::Instr2(std::int32_t start, TextView MainString, TextView SearchString,
                                    ZQ7CompareMethod Compare, bool SearchFromBack) const {
  if (SearchFromBack)
    return SearchString.empty() ? 0 : Position(FindLast(MainString, SearchString));
  if (start < 1) Raise(Error::kInvalidArgument, {"Instr2", "start"}, start);
  if (Compare != ZQ7CompareBinary && Compare != ZQ7CompareText) {
    Raise(Error::kInvalidArgument, {"Instr2", "Compare"}, std::int32_t{Compare});
  }
  const auto first = static_cast<std::size_t>(start) - 1;
  if (first >= MainString.size()) return 0;
  return Position(Compare == ZQ7CompareText
                      ? FindFirst(MainString, SearchString, first, EqualInUpperCase)
                      : FindFirst(MainString, SearchString, first));
}

std::int32_t StandardObject::Random(std::int32_t Low, std::int32_t High) const {
  services_->Random().Reseed();
  const float draw = services_->Random().Next();
  const std::int64_t difference = std::int64_t{High} - Low;
  const std::int64_t count = difference + 1;
  const auto offset = RoundToInteger<std::int32_t>(draw * static_cast<double>(count));
  const bool in_range = Fits<std::int32_t>(difference) && Fits<std::int32_t>(count) &&
                        offset.has_value() && Fits<std::int32_t>(std::int64_t{Low} + *offset);
  if (!in_range) {
    Raise(Error::kOverflow, {"Random", "High"}, High, "from " + std::to_string(Low));
  }
  return Low + *offset;
}

}  // namespace ZQ7Standard
