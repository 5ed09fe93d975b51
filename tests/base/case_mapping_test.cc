#include "base/case_mapping.h"

#include <gtest/gtest.h>

namespace ZQ7Standard {
namespace {

TEST(CaseMapping, MapsOneCharacterToOne) {
  // Among them a range of every second character, and a capital far away.
  for (const TextView pair : {u"aA", u"ąĄ", u"ÿŸ", u"σΣ", u"აᲐ"}) {
    EXPECT_EQ(ToUpper(pair[0]), pair[1]) << Utf8(pair);
    EXPECT_EQ(ToLower(pair), Text(2, pair[0])) << Utf8(pair);
  }
  EXPECT_EQ(ToUpper(u'ı'), u'I') << "one way";
  EXPECT_EQ(ToUpper(u'ก'), u'ก') << "Thai has no case";
  EXPECT_EQ(ToUpper(u'ß'), u'ß') << "no single capital";
}

// Version 15.0.0 of the Unicode Character Database.
TEST(CaseMapping, ChangesAsManyCharactersAsUnicodeDoes) {
  int upper = 0, lower = 0;
  for (int code = 0; code <= 0xFFFF; ++code) {
    const auto c = static_cast<char16_t>(code);
    upper += ToUpper(c) != c;
    lower += ToLower(Text(1, c)).front() != c;
    ASSERT_EQ(ToUpper(ToUpper(c)), ToUpper(c)) << code;
  }
  EXPECT_EQ(upper, 1190);
  EXPECT_EQ(lower, 1173);
}

}  // namespace
}  // namespace ZQ7Standard
