#include "base/ascii.h"

#include <array>

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
  std::array<char16_t, 10> digits;
  auto first = digits.end();
  for (; number > 0 || digits.end() - first < width; number /= 10) {
    *--first = static_cast<char16_t>(u'0' + number % 10);
  }
  text.append(first, digits.end());
}

}  // namespace ZQ7Standard
