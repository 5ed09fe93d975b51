#include <ZQ7Standard/Types.h>
#include <gtest/gtest.h>

using namespace ZQ7Standard;

// Every character survives UTF-8; a lone surrogate is replaced.
TEST(Utf8, EveryCharacterComesBack) {
  for (char32_t c = 0; c <= 0x10FFFF; ++c) {
    Text text(1, static_cast<char16_t>(c));
    if (c > 0xFFFF) {
      text = {static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10)),
              static_cast<char16_t>(0xDC00 + (c & 0x3FF))};
    }
    const bool surrogate = c >= 0xD800 && c <= 0xDFFF;
    ASSERT_EQ(IsWellFormed(text), !surrogate) << std::hex << std::uint32_t{c};
    ASSERT_EQ(FromUtf8(Utf8(text)), surrogate ? u"\xFFFD" : text) << std::hex << std::uint32_t{c};
  }
}

TEST(Utf8, ReplacesWhatIsNotWellFormed) {
  EXPECT_EQ(Utf8(u"บาท€😀"), "บาท€😀");
  EXPECT_EQ(Utf8(Text{0xDC00, 0xD800, u'a', 0xD83D}), "\uFFFD\uFFFDa\uFFFD");
  // clang-format off
  const std::pair<const char*, std::size_t> malformed[] = {
      {"\x80", 1}, {"\xC0\xAF", 2}, {"\xC3", 1}, {"\xE0\x80\x80", 3}, {"\xE0\xB8", 2},
      {"\xED\xA0\x80", 3}, {"\xF4\x90\x80\x80", 4}, {"\xF8\x88\x80\x80\x80", 5}, {"\xFF", 1}, {"\xC3\xC3", 2},
  };
  // clang-format on
  for (const auto& [bytes, length] : malformed) {
    EXPECT_EQ(FromUtf8(std::string("a") + bytes + "b"), u"a" + Text(length, u'\xFFFD') + u"b");
  }
}
