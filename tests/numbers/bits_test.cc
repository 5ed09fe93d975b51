#include <ZQ7Standard/BitByteObject.h>
#include <gtest/gtest.h>

#include <limits>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

using Int16 = std::numeric_limits<std::int16_t>;
using Int32 = std::numeric_limits<std::int32_t>;

constexpr int kLastBinary = 13815;  // octal 32767
const BitByteObject kBits;

TEST(BitByteObject, ReadsAndWritesTexts) {
  // clang-format off
  const std::tuple<const char*, Text, Text> texts[] = {
      {"the first group is filled", kBits.Bin2hex(u"101"), u"5"}, {"none", kBits.Bin2hex(u""), u""},
      {"groups of zeros stay", kBits.Bin2Oct(u"000001"), u"01"},
      {"a group with another character gives no digit", kBits.Bin2Oct(u"111121010"), u"72"},
      {"also the first, which is filled", kBits.Bin2hex(u"x1111"), u"F"},
      {"zeros go", kBits.Oct2Bin(u"017"), u"1111"}, {"only zeros", kBits.Oct2Bin(u"000"), u""},
      {"kept", kBits.Oct2Bin(u"017", true), u"000001111"},
      {"kept", kBits.Hex2Bin(u"0", true), u"0000"},
      {"8 and A are no octal digits", kBits.Oct2Bin(u"1A87"), u"1111"},
      {"either case", kBits.Hex2Bin(u"aBcDeF"), u"101010111100110111101111"},
      {"other characters add nothing", kBits.Hex2Bin(u" 1Gก-2"), u"10010"},
      {"zeros are lost on the way", kBits.Hex2Oct(u"00f"), u"17"},
      {"two's complement", kBits.Dec2hex(Int32::min()), u"80000000"},
      {"three bits", kBits.Dec2Bin(0), u"000"}, {"zeros stay", kBits.Dec2Bin(8, false), u"001000"},
      {"33 bits", kBits.Dec2Bin(-1), u"0" + Text(32, u'1')}, {"ZZ", kBits.Base10To26(702), u"ZZ"},
  };
  const std::tuple<const char*, int, int> numbers[] = {
      {"nothing", kBits.Bin2Dec(u""), 0}, {"no binary text", kBits.Bin2Dec(u"102"), 0},
      {"zeros in front do not count", kBits.Bin2Dec(Text(40, u'0') + u"101"), 5},
      {"octal 32767", kBits.Bin2Dec(u"11010111110111"), kLastBinary},
      {"lower case", kBits.Hex2Dec2(u"7fff"), 32767}, {"zeros", kBits.Hex2Dec2(u"00000FFFF"), -1},
      {"the first negative number in 32 bits", kBits.Hex2Dec2(u"FFFF8000"), Int16::min()},
      {"the reading stops", kBits.Hex2Dec2(u"1FG2"), 0x1F}, {"at a sign", kBits.Hex2Dec2(u"-1"), 0},
      {"at a sign too", kBits.Hex2Dec(-10), 0}, {"at a sign too", kBits.Oct2Dec(-10), 0},
      {"lower case", kBits.Base26To10(u"a"), 0}, {"a digit", kBits.Base26To10(u"ZZZZZZZZZZZZ0"), 0},
      {"the last column of 32 bits", kBits.Base26To10(u"FXSHRXW"), Int32::max()},
      {"2 clears", kBits.BitWrite(5, 1, 2), 4}, {"so does -1", kBits.BitWrite(5, 1, -1), 4},
  };
  const std::pair<const char*, void (*)()> overflows[] = {
      {"octal 32770", [] { kBits.Bin2Dec(u"11010111111000"); }},
      {"more bits than a number has", [] { kBits.Bin2Dec(Text(100, u'1')); }},
      {"17 bits", [] { kBits.Hex2Dec2(u"10000"); }}, {"33", [] { kBits.Hex2Dec2(u"1FFFFFFFF"); }},
      {"one below -32768", [] { kBits.Hex2Dec2(u"FFFF7FFF"); }},
      {"a column of 32 bits and one", [] { kBits.Base26To10(u"FXSHRXX"); }},
      {"a column of many letters", [] { kBits.Base26To10(Text(100, u'Z')); }},
      {"below 0", [] { kBits.BitWrite(-1, 1, 0); }}, {"below 0", [] { kBits.BitSwitch(-1, 33); }},
  };
  // clang-format on
  for (const auto& [reason, actual, expected] : texts) EXPECT_EQ(actual, expected) << reason;
  for (const auto& [reason, actual, expected] : numbers) EXPECT_EQ(actual, expected) << reason;
  for (const auto& [reason, call] : overflows) EXPECT_EQ(ErrorOf(call), 6) << reason;
}

// Each bit of every 16-bit number, checked against its binary text.
TEST(BitByteObject, BitsAgreeWithTheTexts) {
  for (int n = Int16::min(); n <= Int16::max(); ++n) {
    const auto number = static_cast<std::int16_t>(n);
    const Text binary = kBits.Dec2Bin(n);
    for (std::uint8_t position = 0; position <= 34; ++position) {
      const bool inside = position > 0 && position <= binary.size();
      const bool set = inside && binary[binary.size() - position] == u'1';
      ASSERT_EQ(kBits.BitRead(number, position), set ? -1 : 0) << n << " bit " << int{position};
      if (n < 0 || n > kLastBinary) continue;
      const int bit = inside ? 1 << (position - 1) : 0;
      const int cleared = !inside ? 0 : set ? n - bit : n;
      ASSERT_EQ(kBits.BitSwitch(number, position), cleared) << n << " bit " << int{position};
      const int raised = cleared + bit;
      if (raised > kLastBinary) continue;
      ASSERT_EQ(kBits.BitWrite(number, position, 1), raised) << n << " bit " << int{position};
    }
  }
}

TEST(BitByteObject, EveryNumberComesBackFromItsTexts) {
  for (int n = Int16::min(); n <= Int16::max(); ++n) {
    const auto number = static_cast<std::int16_t>(n);
    const Text hex = kBits.Dec2hex(n), octal = kBits.Dec2Oct(n);
    ASSERT_EQ(std::stoul(Utf8(octal), nullptr, 8), static_cast<std::uint32_t>(n));
    ASSERT_EQ(kBits.Hex2Dec2(hex), n);
    ASSERT_EQ(kBits.Bin2Oct(kBits.Dec2Bin(n)), octal);
    ASSERT_EQ(kBits.Oct2hex(octal), n == 0 ? u"" : hex);
    ASSERT_EQ(kBits.Base26To10(kBits.Base10To26(number)), std::max(n, 0));
    if (n < 0) continue;
    const std::string digits = std::to_string(n);
    const std::string octal_digits = '0' + digits.substr(0, digits.find_first_of("89"));
    ASSERT_EQ(kBits.Oct2Dec(number), std::stoi(octal_digits, nullptr, 8)) << n;
    int read = 0;
    ASSERT_EQ(ErrorOf([&] { read = kBits.Hex2Dec(number); }), n > 9999 ? 6 : 0) << n;
    const int expected = n > 9999 ? 0 : std::stoi(digits, nullptr, 16);
    ASSERT_EQ(read, static_cast<std::int16_t>(expected)) << n;
  }
}

}  // namespace
}  // namespace ZQ7Standard
