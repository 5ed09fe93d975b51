#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

const StandardObject kObject;

struct KeyCase {
  const char* reason;
  TextView typed;
  std::int16_t space, number, upper, english, multi_space;
  TextView expected;
};

TEST(FormatPrimaryKey, CleansInItsOrder) {
  const KeyCase cases[] = {
      {"no option", u" ab c'd; ", 0, 0, 0, 0, 0, u"abcd"},
      {"-1 is off", u" ab c'd; ", -1, 2, -1, 2, 0, u"abcd"},
      {"what breaks queries and lists", u"'a;;b,%c'", 1, 0, 0, 0, 0, u"abc"},
      {"is dropped before the blanks around are", u"' a ;", 1, 0, 0, 0, 1, u"a"},
      {"and before runs shrink", u"a ' b", 1, 0, 0, 0, 0, u"a b"},
      {"runs shrink", u"a   b", 1, 0, 0, 0, 0, u"a b"},
      {"runs stay", u"a   b", 1, 0, 0, 0, 1, u"a   b"},
      {"runs shrink at 0 only", u"a   b", 1, 0, 0, 0, -1, u"a   b"},
      {"digits", u" A1-๑2 ", 1, 1, 0, 0, 1, u"12"},
      {"English", u"A1-ก2é", 0, 0, 0, 1, 0, u"A12"},
      {"English has no blanks", u"a b", 1, 0, 0, 1, 1, u"ab"},
      {"upper case of any script", u"aéжกß", 0, 0, 1, 0, 0, u"AÉЖกß"},
      {"upper case first, then English", u"ıſé", 0, 0, 1, 1, 0, u"IS"},
      {"line breaks go, tabs do not", u"\ta\r\nb\n", 0, 0, 0, 0, 0, u"\tab"},
      {"blanks before a break at the end stay", u" a \r\n", 1, 0, 0, 0, 0, u"a "},
      {"a break parts a run of blanks", u"a \r\n b", 1, 0, 0, 0, 0, u"a  b"},
      {"nothing left", u" '; ", 1, 0, 0, 0, 1, u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.FormatPrimaryKey(c.typed, 1, 1, c.space, c.number, c.upper, c.english,
                                       c.multi_space, 1, 1, 1),
              c.expected)
        << c.reason;
    if (c.multi_space != 0) continue;
    EXPECT_EQ(kObject.FormatSerialNo(c.typed, 1, c.space, c.number, c.upper, c.english), c.expected)
        << c.reason;
  }
  EXPECT_EQ(kObject.FormatPrimaryKey(u" a b'"), u"ab");
  EXPECT_EQ(kObject.FormatSerialNo(Text(40, u'x')), Text(40, u'x'));
}

TEST(FormatBarCode, KeepsCapitalsAndDigits) {
  EXPECT_EQ(kObject.FormatBarCode(u" 885-1234 abc "), u"8851234ABC");
  EXPECT_EQ(kObject.FormatBarCode(u"ก\r\nb %1", -1), u"B1");
}

TEST(FormatIP, ReadsFourOrSixParts) {
  const struct {
    const char* reason;
    TextView address;
    bool force_ipv4;
    TextView expected;
  } cases[] = {
      {"256 is taken, zeros go", u"192.168.001.256", true, u"192.168.1.256"},
      {"257 is not", u"192.168.1.257", true, u""},
      {"signs are dropped", u"-1.+2.-256.4", true, u"1.2.256.4"},
      {"the smallest 16-bit part", u"-32768.1.1.1", true, u""},
      {"blanks are skipped", u" 1 0.1.2.3 ", true, u"10.1.2.3"},
      {"what is no number is 0", u"a..3x.", true, u"0.0.3.0"},
      {"a percentage, halves to even", u"150%.250%.1.1", true, u"2.2.1.1"},
      {"three parts", u"1.2.3", true, u""},
      {"too many parts are not read", u"1.2.3.4.99999", false, u""},
      {"six parts", u"1.2.3.4.5.6", true, u""},
      {"six parts, not forced", u"1.2.3.4.5.06", false, u"1.2.3.4.5.6"},
      {"four parts, not forced", u"1.2.3.4", false, u"1.2.3.4"},
      {"empty", u"", true, u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.FormatIP(c.address, c.force_ipv4), c.expected) << c.reason;
  }
  EXPECT_EQ(ErrorOf([] { kObject.FormatIP(u"300.1.1.32768"); }), 6) << "all parts are read";
}

}  // namespace
}  // namespace ZQ7Standard
