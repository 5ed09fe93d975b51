#include <ZQ7Standard/Types.h>

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/ascii.h"
#include "dates/date_math.h"

namespace ZQ7Standard {
namespace {

/// In which "0" is any digit, and " " also "T".
constexpr std::string_view kPattern = "0000-00-00 00:00:00";
constexpr std::array<std::size_t, 3> kLengths = {10, 16, 19};

bool Fits(std::string_view text) {
  if (std::ranges::find(kLengths, text.size()) == kLengths.end()) return false;
  return std::ranges::equal(text, kPattern.substr(0, text.size()), [](char c, char wanted) {
    if (wanted == '0') return IsAsciiDigit(static_cast<unsigned char>(c));
    return c == wanted || (wanted == ' ' && c == 'T');
  });
}

/// The number of `length` digits at `position`; 0 after the end of the text.
int NumberAt(std::string_view text, std::size_t position, std::size_t length) {
  int number = 0;
  if (position < text.size()) {
    for (const char digit : text.substr(position, length)) number = number * 10 + (digit - '0');
  }
  return number;
}

}  // namespace

std::optional<OleDate> OleDate::FromIso(std::string_view text) {
  if (!Fits(text)) return std::nullopt;
  const auto day = DateFromParts(NumberAt(text, 0, 4), NumberAt(text, 5, 2), NumberAt(text, 8, 2));
  const int hour = NumberAt(text, 11, 2);
  const int minute = NumberAt(text, 14, 2);
  const int second = NumberAt(text, 17, 2);
  if (!day || hour > 23 || minute > 59 || second > 59) return std::nullopt;
  return AtTime(*day, (hour * 3600 + minute * 60 + second) / 86400.0);
}

}  // namespace ZQ7Standard
