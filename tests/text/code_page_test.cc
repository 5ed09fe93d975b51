#include "text/code_page.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <utility>

namespace ZQ7Standard {
namespace {

constexpr std::array<std::pair<int, char16_t>, 9> kPunctuation = {{
    {0x80, 0x20AC},
    {0x85, 0x2026},
    {0x91, 0x2018},
    {0x92, 0x2019},
    {0x93, 0x201C},
    {0x94, 0x201D},
    {0x95, 0x2022},
    {0x96, 0x2013},
    {0x97, 0x2014},
}};

/// The byte of a character in Windows-874, "?" for one that has none.
int ByteOf(char16_t c) {
  for (const auto& [byte, character] : kPunctuation) {
    if (character == c) return byte;
    if (byte == c) return '?';  // the C1 control in whose place it stands
  }
  if (c <= 0xA0) return c;
  if (c >= 0x0E01 && c <= 0x0E3A) return c - 0x0E01 + 0xA1;
  if (c >= 0x0E3F && c <= 0x0E5B) return c - 0x0E3F + 0xDF;
  if (c >= 0xF8C1 && c <= 0xF8C4) return c - 0xF8C1 + 0xDB;
  if (c >= 0xF8C5 && c <= 0xF8C8) return c - 0xF8C5 + 0xFC;
  return '?';
}

// Alone, and in a text long enough for blocks, at each place of a block.
TEST(CodePage, EncodesEveryCodeUnitAmongAnyNeighbours) {
  for (const char16_t neighbour : TextView(u"aก€")) {
    Text text(100, neighbour);
    const std::string without = ToCodePage(text);
    for (int unit = 0; unit <= 0xFFFF; ++unit) {
      const auto c = static_cast<char16_t>(unit);
      const auto byte = static_cast<char>(ByteOf(c));
      ASSERT_EQ(ToCodePage(Text(1, c)), std::string(1, byte)) << unit;
      const std::size_t at = c % text.size();
      std::string expected = without;
      expected[at] = byte;
      text[at] = c;
      ASSERT_EQ(ToCodePage(text), expected) << unit << " among " << int{neighbour};
      text[at] = neighbour;
    }
  }
}

TEST(CodePage, EveryByteGoesThroughTextAmongAnyNeighbours) {
  for (const char neighbour : {'a', '\xA1', '\x80'}) {
    std::string bytes(100, neighbour);
    for (int byte = 0; byte <= 0xFF; ++byte) {
      for (std::size_t at = 0; at < bytes.size(); at += 7) {
        bytes[at] = static_cast<char>(byte);
        const Text text = FromCodePage(bytes);
        ASSERT_EQ(ByteOf(text[at]), byte);
        ASSERT_EQ(ToCodePage(text), bytes) << byte;
        bytes[at] = neighbour;
      }
    }
  }
}

TEST(CodePage, CountsCodeUnits) {
  EXPECT_EQ(ToCodePage(u""), "");
  EXPECT_EQ(FromCodePage(""), u"");
  EXPECT_EQ(ToCodePage(u"a😀b"), "a\?\?b");
  EXPECT_EQ(ToCodePage(u"฿5 – “กข”"),
            "\xDF"
            "5 \x96 \x93\xA1\xA2\x94");
}

}  // namespace
}  // namespace ZQ7Standard
