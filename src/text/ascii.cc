#include "text/ascii.h"

#include <array>
#include <charconv>

namespace ZQ7Standard {

std::optional<int> ReadShortNumber(TextView digits) {
  if (digits.empty() || digits.size() > 4) return std::nullopt;
  int number = 0;
  for (const char16_t c : digits) {
    if (!IsAsciiDigit(c)) return std::nullopt;
    number = number * 10 + (c - u'0');
  }
  return number;
}

void AppendNumber(Text& text, int number, int width) {
  std::array<char, 12> digits;
  const char* const begin = digits.data();
  const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  for (auto count = end - begin; count < width; ++count) text.push_back(u'0');
  text.append(begin, end);
}

}  // namespace ZQ7Standard
