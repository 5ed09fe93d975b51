#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <array>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

const StandardObject kObject;

// The options: blanks inside, digits only, upper case, English only, runs of blanks.
TEST(FormatPrimaryKey, CleansInItsOrder) {
  // clang-format off
  const std::tuple<const char*, TextView, std::array<std::int16_t, 5>, TextView> cases[] = {
      {"no option", u" ab c'd; ", {0, 0, 0, 0, 0}, u"abcd"},
      {"-1 is off", u" ab c'd; ", {-1, 2, -1, 2, 0}, u"abcd"},
      {"what breaks queries and lists", u"'a;;b,%c'", {1, 0, 0, 0, 0}, u"abc"},
      {"is dropped before the blanks around are", u"' a ;", {1, 0, 0, 0, 1}, u"a"},
      {"and before runs shrink", u"a ' b", {1, 0, 0, 0, 0}, u"a b"},
      {"runs stay", u"a   b", {1, 0, 0, 0, 1}, u"a   b"},
      {"runs shrink", u"a   b", {1, 0, 0, 0, 0}, u"a b"},
      {"runs shrink at 0 only", u"a   b", {1, 0, 0, 0, -1}, u"a   b"},
      {"digits", u" A1-๑2 ", {1, 1, 0, 0, 1}, u"12"},
      {"English", u"A1-ก2é", {0, 0, 0, 1, 0}, u"A12"},
      {"English has no blanks", u"a b", {1, 0, 0, 1, 1}, u"ab"},
      {"upper case of any script", u"aéжกß", {0, 0, 1, 0, 0}, u"AÉЖกß"},
      {"upper case first, then English", u"ıſé", {0, 0, 1, 1, 0}, u"IS"},
      {"line breaks go, tabs do not", u"\ta\r\nb\n", {0, 0, 0, 0, 0}, u"\tab"},
      {"blanks before a break at the end stay", u" a \r\n", {1, 0, 0, 0, 0}, u"a "},
      {"a break parts a run of blanks", u"a \r\n b", {1, 0, 0, 0, 0}, u"a  b"},
      {"nothing left", u" '; ", {1, 0, 0, 0, 1}, u""},
  };
  // clang-format on
  for (const auto& [reason, typed, on, expected] : cases) {
    const auto [space, number, upper, english, runs] = on;
    const Text key =
        kObject.FormatPrimaryKey(typed, 1, 1, space, number, upper, english, runs, 1, 1, 1);
    EXPECT_EQ(key, expected) << reason;
    if (runs != 0) continue;
    EXPECT_EQ(kObject.FormatSerialNo(typed, 1, space, number, upper, english), key) << reason;
  }
  EXPECT_EQ(kObject.FormatPrimaryKey(u" a b'"), u"ab");
  EXPECT_EQ(kObject.FormatSerialNo(Text(40, u'x')), Text(40, u'x'));
  EXPECT_EQ(kObject.FormatBarCode(u" 885-1234 abc "), u"8851234ABC");
  EXPECT_EQ(kObject.FormatBarCode(u"ก\r\nb %1", -1), u"B1");
}

TEST(FormatIP, ReadsFourOrSixParts) {
  // clang-format off
  const std::tuple<const char*, TextView, bool, TextView> cases[] = {
      {"256 is taken, zeros go", u"192.168.001.256", true, u"192.168.1.256"},
      {"257 is not", u"192.168.1.257", true, u""}, {"blanks go", u" 1 0.1.2.3 ", true, u"10.1.2.3"},
      {"signs are dropped", u"-1.+2.-256.4", true, u"1.2.256.4"}, {"empty", u"", true, u""},
      {"the smallest 16-bit part", u"-32768.1.1.1", true, u""},
      {"what is no number is 0", u"a..3x.", true, u"0.0.3.0"}, {"three parts", u"1.2.3", true, u""},
      {"a percentage, halves to even", u"150%.250%.1.1", true, u"2.2.1.1"},
      {"too many parts are not read", u"1.2.3.4.99999", false, u""},
      {"six parts", u"1.2.3.4.5.6", true, u""}, {"six", u"1.2.3.4.5.06", false, u"1.2.3.4.5.6"},
      {"four parts, not forced", u"1.2.3.4", false, u"1.2.3.4"},
  };
  // clang-format on
  for (const auto& [reason, address, force_ipv4, expected] : cases) {
    EXPECT_EQ(kObject.FormatIP(address, force_ipv4), expected) << reason;
  }
  EXPECT_EQ(ErrorOf([] { kObject.FormatIP(u"300.1.1.32768"); }), 6) << "all parts are read";
}

}  // namespace
}  // namespace ZQ7Standard
