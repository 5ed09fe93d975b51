#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/ascii.h"
#include "base/fields.h"
#include "base/raise.h"
#include "base/unicode.h"
#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kDigits = 10;
constexpr int kMaxWholeDigits = 15;
constexpr int kDecimals = 2;
constexpr TextView kNoDecimals = u".00";
constexpr TextView kDecimalDigits = u"0123456789";

/// The code units that stand for digits in a code.
struct Letters {
  TextView word;                                  ///< the units for 1 to 9 and 0
  std::array<char16_t, kDigits> folded;           ///< the same, A to Z in upper case
  std::optional<char16_t> repeat = std::nullopt;  ///< for a digit equal to the last
};

/// The index of `unit` among the letters; `kDigits` if it is not one.
std::size_t IndexIn(const Letters& letters, char16_t unit) {
  const char16_t folded = AsciiUpper(unit);
  std::size_t index = 0;
  while (index < kDigits && letters.folded[index] != folded) ++index;
  return index;
}

/// Characters that codes write literally, and halves of surrogate pairs, cannot stand for digits.
bool CanBeLetter(char16_t unit) {
  const bool stands = IsAsciiDigit(unit) || unit == u'.' || unit == u'-' || unit == u' ';
  return !stands && !IsHighSurrogate(unit) && !IsLowSurrogate(unit);
}

/// Returns nullopt if `word` is not a code word.
std::optional<Letters> LettersOf(TextView word) {
  if (word.size() != kDigits || !std::ranges::all_of(word, CanBeLetter)) return std::nullopt;
  Letters letters = {word, {}};
  std::ranges::transform(word, letters.folded.begin(), AsciiUpper);
  for (std::size_t i = 0; i < kDigits; ++i) {
    if (IndexIn(letters, word[i]) != i) return std::nullopt;
  }
  return letters;
}

Letters CheckedLetters(std::string_view operation, TextView word) {
  const auto letters = LettersOf(word);
  if (!letters) Raise(Error::kInvalidArgument, {operation, "CodeWord"}, word);
  return *letters;
}

Letters CheckedLetters(std::string_view operation, TextView word, TextView repeat) {
  Letters letters = CheckedLetters(operation, word);
  const bool is_another_letter = repeat.size() == 1 && CanBeLetter(repeat.front()) &&
                                 IndexIn(letters, repeat.front()) == kDigits;
  if (!is_another_letter) {
    Raise(Error::kInvalidArgument, {operation, "RepeatCharacter"}, repeat);
  }
  letters.repeat = repeat.front();
  return letters;
}

Text Encode(std::string_view operation, double price, const Letters& letters) {
  const auto number = ToDecimal(price);
  if (!number || DecimalDigits(*number).WholeCount() > kMaxWholeDigits) {
    Raise(Error::kOverflow, {operation, "Price"}, price);
  }
  Text code = FormatDecimal(*number, kDecimals, Grouping::kNone);
  if (code.ends_with(kNoDecimals)) code.resize(code.size() - kNoDecimals.size());
  char16_t last = u'\0';
  for (char16_t& unit : code) {
    if (!IsAsciiDigit(unit)) continue;
    const char16_t digit = unit;
    const auto index = static_cast<std::size_t>(digit - u'0') + kDigits - 1;
    unit = letters.repeat && digit == last ? *letters.repeat : letters.word[index % kDigits];
    last = digit;
  }
  return code;
}

/// Decodes `unit` as the character of a decimal number after those of `number`. Returns nullopt if
/// it cannot follow them.
std::optional<char16_t> Decoded(char16_t unit, TextView number, const Letters& letters) {
  const bool after_digit = !number.empty() && IsAsciiDigit(number.back());
  const std::size_t index = IndexIn(letters, unit);
  if (index < kDigits) return kDecimalDigits[(index + 1) % kDigits];
  if (letters.repeat && AsciiUpper(unit) == AsciiUpper(*letters.repeat)) {
    const std::size_t last = number.find_last_of(kDecimalDigits);
    return last == TextView::npos ? std::nullopt : std::optional(number[last]);
  }
  const bool is_sign = unit == u'-' && number.empty();
  const bool is_mark = unit == u'.' && after_digit && number.find(u'.') == TextView::npos;
  return is_sign || is_mark ? std::optional(unit) : std::nullopt;
}

double Decode(std::string_view operation, TextView code, const Letters& letters) {
  const TextView front_trimmed = TrimFront(code);
  const TextView units = TrimBack(front_trimmed);
  if (units.empty()) return 0;
  Text number;
  for (const char16_t unit : units) {
    const auto next = Decoded(unit, number, letters);
    if (!next) break;
    number.push_back(*next);
  }
  if (number.size() < units.size() || !IsAsciiDigit(number.back())) {
    const std::size_t place = code.size() - front_trimmed.size() + number.size() + 1;
    Raise(Error::kTypeMismatch, {operation, "CostCode"}, code, "place " + std::to_string(place));
  }
  const auto price = ReadLeadingNumber(number);
  if (!price) Raise(Error::kOverflow, {operation, "CostCode"}, code);
  return *price;
}

}  // namespace

Text StandardObject::FormatCostCode(double Price, TextView CodeWord) const {
  constexpr auto kOperation = "FormatCostCode";
  return Encode(kOperation, Price, CheckedLetters(kOperation, CodeWord));
}

Text StandardObject::FormatCostCode2(double Price, TextView CodeWord,
                                     TextView RepeatCharacter) const {
  constexpr auto kOperation = "FormatCostCode2";
  return Encode(kOperation, Price, CheckedLetters(kOperation, CodeWord, RepeatCharacter));
}

double StandardObject::DeFormatCostCode(TextView CostCode, TextView CodeWord) const {
  constexpr auto kOperation = "DeFormatCostCode";
  return Decode(kOperation, CostCode, CheckedLetters(kOperation, CodeWord));
}

double StandardObject::DeFormatCostCode2(TextView CostCode, TextView CodeWord,
                                         TextView RepeatCharacter) const {
  constexpr auto kOperation = "DeFormatCostCode2";
  return Decode(kOperation, CostCode, CheckedLetters(kOperation, CodeWord, RepeatCharacter));
}

}  // namespace ZQ7Standard
