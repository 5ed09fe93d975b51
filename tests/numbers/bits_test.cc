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

struct TextCase {
  const char* reason;
  Text actual;
  Text expected;
};

TEST(BitByteObject, WritesTexts) {
  const TextCase cases[] = {
      {"the first group is filled", kBits.Bin2hex(u"101"), u"5"},
      {"the first group is filled", kBits.Bin2Oct(u"1000"), u"10"},
      {"groups of zeros stay", kBits.Bin2Oct(u"000001"), u"01"},
      {"nothing", kBits.Bin2hex(u""), u""},
      {"a group with another character gives no digit", kBits.Bin2Oct(u"111121010"), u"72"},
      {"also the first, which is filled", kBits.Bin2hex(u"x1111"), u"F"},
      {"zeros go when not asked for", kBits.Oct2Bin(u"017"), u"1111"},
      {"those of the first digit stay too", kBits.Oct2Bin(u"017", true), u"000001111"},
      {"only zeros", kBits.Oct2Bin(u"000"), u""},
      {"only zeros", kBits.Hex2Bin(u"00"), u""},
      {"only zeros that stay", kBits.Hex2Bin(u"0", true), u"0000"},
      {"8 and A are no octal digits", kBits.Oct2Bin(u"1A87"), u"1111"},
      {"either case", kBits.Hex2Bin(u"aBcDeF"), u"101010111100110111101111"},
      {"other characters add nothing", kBits.Hex2Bin(u" 1Gก-2"), u"10010"},
      {"zeros are lost on the way", kBits.Oct2hex(u"0"), u""},
      {"zeros are lost on the way", kBits.Hex2Oct(u"00f"), u"17"},
      {"two's complement", kBits.Dec2Oct(-1), u"37777777777"},
      {"two's complement", kBits.Dec2hex(Int32::min()), u"80000000"},
      {"upper case", kBits.Dec2hex(0xABCDEF), u"ABCDEF"},
      {"zeros stay, asked for or not", kBits.Dec2Bin(8, false), u"001000"},
      {"0 has three bits", kBits.Dec2Bin(0), u"000"},
      {"33 bits", kBits.Dec2Bin(-1), u"0" + Text(32, u'1')},
      {"no column", kBits.Base10To26(0), u""},
      {"the last of one letter", kBits.Base10To26(26), u"Z"},
      {"the first of two", kBits.Base10To26(27), u"AA"},
      {"the last of two", kBits.Base10To26(702), u"ZZ"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.actual, c.expected) << c.reason;
}

struct NumberCase {
  const char* reason;
  std::int32_t actual;
  std::int32_t expected;
};

TEST(BitByteObject, ReadsTextsAndBits) {
  const NumberCase cases[] = {
      {"nothing", kBits.Bin2Dec(u""), 0},
      {"no binary text", kBits.Bin2Dec(u"102"), 0},
      {"zeros in front do not count", kBits.Bin2Dec(Text(40, u'0') + u"101"), 5},
      {"octal 32767", kBits.Bin2Dec(u"11010111110111"), kLastBinary},
      {"nothing", kBits.Hex2Dec2(u""), 0},
      {"lower case", kBits.Hex2Dec2(u"7fff"), Int16::max()},
      {"zeros in front do not count", kBits.Hex2Dec2(u"00000FFFF"), -1},
      {"the first negative number in 32 bits", kBits.Hex2Dec2(u"FFFF8000"), Int16::min()},
      {"the reading stops", kBits.Hex2Dec2(u"1FG2"), 0x1F},
      {"at a sign too", kBits.Hex2Dec2(u"-1"), 0},
      {"at a sign too", kBits.Hex2Dec(-10), 0},
      {"at a sign too", kBits.Oct2Dec(-10), 0},
      {"nothing", kBits.Base26To10(u""), 0},
      {"lower case", kBits.Base26To10(u"a"), 0},
      {"one character spoils it", kBits.Base26To10(u"ZZZZZZZZZZZZ0"), 0},
      {"the last column of 32 bits", kBits.Base26To10(u"FXSHRXW"), Int32::max()},
      {"a bit past the text", kBits.BitRead(5, 10), 0},
      {"a bit is set", kBits.BitWrite(5, 2, 1), 7},
      {"2 clears it", kBits.BitWrite(5, 1, 2), 4},
      {"what BitRead gives for a set bit clears it", kBits.BitWrite(5, 1, -1), 4},
      {"no position 0", kBits.BitWrite(5, 0, 1), 0},
      {"past the text of one octal digit", kBits.BitWrite(5, 4, 1), 0},
      {"zeros in front are places", kBits.BitWrite(8, 6, 1), 40},
      {"0 has three places", kBits.BitWrite(0, 3, 1), 4},
      {"a set bit is cleared", kBits.BitSwitch(5, 1), 4},
      {"a cleared bit stays so", kBits.BitSwitch(4, 1), 4},
  };
  for (const auto& c : cases) EXPECT_EQ(c.actual, c.expected) << c.reason;
}

struct OverflowCase {
  const char* reason;
  void (*call)();
};

TEST(BitByteObject, RaisesOverflow) {
  const OverflowCase cases[] = {
      {"octal 32770", [] { kBits.Bin2Dec(u"11010111111000"); }},
      {"more bits than a number has", [] { kBits.Bin2Dec(Text(100, u'1')); }},
      {"17 bits", [] { kBits.Hex2Dec2(u"10000"); }},
      {"one below -32768", [] { kBits.Hex2Dec2(u"FFFF7FFF"); }},
      {"33 bits", [] { kBits.Hex2Dec2(u"1FFFFFFFF"); }},
      {"a column of 32 bits and one", [] { kBits.Base26To10(u"FXSHRXX"); }},
      {"a column of many letters", [] { kBits.Base26To10(Text(100, u'Z')); }},
      {"a negative number", [] { kBits.BitWrite(-1, 1, 0); }},
      {"a negative number", [] { kBits.BitSwitch(-1, 33); }},
  };
  for (const auto& c : cases) EXPECT_EQ(ErrorOf(c.call), 6) << c.reason;
}

// The bits by way of the texts, for every 16-bit number and every position.
TEST(BitByteObject, BitsAgreeWithTheTexts) {
  for (int n = Int16::min(); n <= Int16::max(); ++n) {
    const auto number = static_cast<std::int16_t>(n);
    const Text binary = kBits.Dec2Bin(n);
    for (std::uint8_t position = 0; position <= 34; ++position) {
      const bool inside = position > 0 && position <= binary.size();
      const bool set = inside && binary[binary.size() - position] == u'1';
      ASSERT_EQ(kBits.BitRead(number, position), set ? -1 : 0) << n << " bit " << int{position};
      if (n < 0 || n > kLastBinary) continue;
      Text cleared = binary;
      if (inside) cleared[binary.size() - position] = u'0';
      const int expected = inside ? std::stoi(Utf8(cleared), nullptr, 2) : 0;
      ASSERT_EQ(kBits.BitSwitch(number, position), expected) << n << " bit " << int{position};
      const int raised = inside ? expected + (1 << (position - 1)) : 0;
      if (raised > kLastBinary) continue;
      ASSERT_EQ(kBits.BitWrite(number, position, 1), raised) << n << " bit " << int{position};
    }
  }
}

TEST(BitByteObject, EveryNumberComesBackFromItsTexts) {
  for (int n = Int16::min(); n <= Int16::max(); ++n) {
    const Text hex = kBits.Dec2hex(n);
    const Text octal = kBits.Dec2Oct(n);
    ASSERT_EQ(std::stoul(Utf8(octal), nullptr, 8), static_cast<std::uint32_t>(n));
    ASSERT_EQ(kBits.Hex2Dec2(hex), n);
    ASSERT_EQ(kBits.Bin2Oct(kBits.Dec2Bin(n)), octal);
    ASSERT_EQ(kBits.Oct2hex(octal), n == 0 ? u"" : hex);
    ASSERT_EQ(kBits.Base26To10(kBits.Base10To26(static_cast<std::int16_t>(n))), std::max(n, 0));
  }
}

TEST(BitByteObject, ReadsTheDecimalDigitsOfEveryNumber) {
  for (int n = 0; n <= Int16::max(); ++n) {
    const auto number = static_cast<std::int16_t>(n);
    const std::string digits = std::to_string(n);
    const std::string octal = '0' + digits.substr(0, digits.find_first_of("89"));
    ASSERT_EQ(kBits.Oct2Dec(number), std::stoi(octal, nullptr, 8)) << n;
    int hex = 0;
    ASSERT_EQ(ErrorOf([&] { hex = kBits.Hex2Dec(number); }), n > 9999 ? 6 : 0) << n;
    const int expected = n > 9999 ? 0 : std::stoi(digits, nullptr, 16);
    ASSERT_EQ(hex, static_cast<std::int16_t>(expected)) << n;
  }
}

}  // namespace
}  // namespace ZQ7Standard
