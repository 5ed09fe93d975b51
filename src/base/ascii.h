#ifndef ZQ7STANDARD_SRC_BASE_ASCII_H_
#define ZQ7STANDARD_SRC_BASE_ASCII_H_

#include <ZQ7Standard/Types.h>

#include <algorithm>
#include <optional>

namespace ZQ7Standard {

constexpr bool IsAsciiDigit(char16_t c) {
  return c >= u'0' && c <= u'9';
}

constexpr char16_t AsciiUpper(char16_t c) {
  return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - (u'a' - u'A')) : c;
}

constexpr char16_t AsciiLower(char16_t c) {
  return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + (u'a' - u'A')) : c;
}

constexpr bool IsAsciiLetter(char16_t c) {
  return AsciiUpper(c) >= u'A' && AsciiUpper(c) <= u'Z';
}

/// Whether two texts are equal, ignoring the case of A to Z.
constexpr bool EqualsIgnoringAsciiCase(TextView a, TextView b) {
  return std::ranges::equal(a, b, {}, AsciiUpper, AsciiUpper);
}

/// The number written by one to four digits, as most fields of dates and times are; nullopt for any
/// other text.
std::optional<int> ReadShortNumber(TextView digits);

/// Appends `number` (from 0) in decimal, with leading zeros up to `width` (1 to 10)
/// digits.
void AppendNumber(Text& text, int number, int width);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_BASE_ASCII_H_
