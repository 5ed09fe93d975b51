#include "base/code_page.h"

#include <gtest/gtest.h>

namespace ZQ7Standard {
namespace {

/// The characters of the 256 bytes.
Text Page() {
  Text page;
  for (char16_t byte = 0; byte < 0xA1; ++byte) page.push_back(byte);
  for (char16_t thai = 0x0E01; page.size() < 0x100; ++thai) page.push_back(thai);
  page.replace(0x80, 1, u"€");
  page.replace(0x85, 1, u"…");
  page.replace(0x91, 7, u"‘’“”•–—");
  page.replace(0xDB, 4, u"\uF8C1\uF8C2\uF8C3\uF8C4");
  page.replace(0xFC, 4, u"\uF8C5\uF8C6\uF8C7\uF8C8");
  return page;
}

// Alone, and in a text long enough for blocks, at each position of a block.
TEST(CodePage, ConvertsEveryCodeUnitAmongAnyNeighbours) {
  const Text page = Page();
  for (const char16_t neighbour : TextView(u"aก€")) {
    Text text(97, neighbour);
    const std::string without = ToCodePage(text);
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
      const auto c = static_cast<char16_t>(unit);
      const std::size_t found = page.find(c);
      const std::string byte(1, found == Text::npos ? '?' : static_cast<char>(found));
      ASSERT_EQ(ToCodePage(Text(1, c)), byte) << unit;
      ASSERT_EQ(Windows874(Text(1, c)).has_value(), found != Text::npos) << unit;
      const std::size_t at = c % 96;
      std::string bytes = without;
      bytes.replace(at, 1, byte);
      text[at] = c;
      ASSERT_EQ(ToCodePage(text), bytes) << unit << " among " << int{neighbour};
      if (found != Text::npos) {
        ASSERT_EQ(FromCodePage(byte), Text(1, c));
        ASSERT_EQ(FromCodePage(bytes), text) << unit;
      }
      text[at] = neighbour;
    }
  }
}

}  // namespace
}  // namespace ZQ7Standard
