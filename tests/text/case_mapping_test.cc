#include "text/case_mapping.h"

#include <gtest/gtest.h>

namespace ZQ7Standard {
namespace {

TEST(CaseMapping, MapsOneCharacterToOne) {
  const struct {
    const char* reason;
    char16_t lower, upper;
  } cases[] = {
      {"Latin", u'a', u'A'},
      {"every second character", u'ą', u'Ą'},
      {"capital far away", u'ÿ', u'Ÿ'},
      {"Greek", u'σ', u'Σ'},
      {"Georgian", u'ა', u'Ა'},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ToUpper(c.lower), c.upper) << c.reason;
    EXPECT_EQ(ToUpper(c.upper), c.upper) << c.reason;
    EXPECT_EQ(ToLower(Text(1, c.upper)), Text(1, c.lower)) << c.reason;
  }
  EXPECT_EQ(ToUpper(u'ı'), u'I') << "one way";
  EXPECT_EQ(ToUpper(u'ก'), u'ก') << "Thai has no case";
  EXPECT_EQ(ToUpper(u'ß'), u'ß') << "no single capital";
}

// 15.0.0 of the Unicode Character Database.
TEST(CaseMapping, ChangesAsManyCharactersAsUnicodeDoes) {
  int upper = 0;
  int lower = 0;
  for (int code = 0; code <= 0xFFFF; ++code) {
    const auto c = static_cast<char16_t>(code);
    if (ToUpper(c) != c) ++upper;
    if (ToLower(Text(1, c)).front() != c) ++lower;
    ASSERT_EQ(ToUpper(ToUpper(c)), ToUpper(c)) << code;
  }
  EXPECT_EQ(upper, 1190);
  EXPECT_EQ(lower, 1173);
}

}  // namespace
}  // namespace ZQ7Standard
