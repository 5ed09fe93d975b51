#include "text/ascii.h"

#include <array>
#include <charconv>

namespace ZQ7Standard {

void AppendNumber(Text& text, int number, int width) {
  std::array<char, 12> digits;
  const char* const begin = digits.data();
  const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  for (auto count = end - begin; count < width; ++count) text.push_back(u'0');
  text.append(begin, end);
}

}  // namespace ZQ7Standard
