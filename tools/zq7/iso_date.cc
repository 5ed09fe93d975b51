#include "iso_date.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace ZQ7Tool {
namespace {

using ZQ7Standard::OleDate;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Whether `text` matches the front of `pattern`, in which "0" is any digit and " " also "T".
bool Follows(std::string_view text, std::string_view pattern) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool fits = pattern[i] == '0'   ? IsDigit(text[i])
                      : pattern[i] == ' ' ? text[i] == ' ' || text[i] == 'T'
                                          : text[i] == pattern[i];
    if (!fits) return false;
  }
  return true;
}

/// The number of `length` digits at `position`; 0 past the end of the text.
int NumberAt(std::string_view text, std::size_t position, std::size_t length) {
  int number = 0;
  if (position < text.size()) {
    for (const char digit : text.substr(position, length)) number = number * 10 + (digit - '0');
  }
  return number;
}

}  // namespace

std::string IsoDateTime(OleDate date) {
  return IsoDate(date) + (date.TimeOfDay() == 0 ? " 00:00:00" : "");
}

std::string IsoDate(OleDate date) {
  return ZQ7Standard::Utf8(date.ToText());
}

std::optional<OleDate> ReadIsoDate(std::string_view text) {
  constexpr std::string_view kPattern = "0000-00-00 00:00:00";
  constexpr std::array<std::size_t, 3> kLengths = {10, 16, 19};
  const bool fits = std::ranges::find(kLengths, text.size()) != kLengths.end();
  if (!fits || !Follows(text, kPattern)) return std::nullopt;
  try {
    return OleDate::FromParts(NumberAt(text, 0, 4), NumberAt(text, 5, 2), NumberAt(text, 8, 2),
                              NumberAt(text, 11, 2), NumberAt(text, 14, 2), NumberAt(text, 17, 2));
  } catch (const ZQ7Standard::RunTimeError&) {
    return std::nullopt;
  }
}

}  // namespace ZQ7Tool
