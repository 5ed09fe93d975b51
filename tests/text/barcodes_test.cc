#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

namespace ZQ7Standard {
namespace {

TEST(ChekDigit, MatchesPrintedCodes) {
  // clang-format off
  const std::tuple<const char*, TextView, int, int> cases[] = {  // EAN-13, ITF-14
      {"11 characters", u"40063813339", -1, -1}, {"12 characters", u"400638133393", 1, -1},
      {"the whole EAN-13", u"4006381333931", 1, 4}, {"ITF-14", u"1540014128876", 5, 3},
      {"ten is 0", u"0000000000019", 7, 2}, {"no digit is 0", u"4๐06a8 33393x", 5, 9},
      {"beside the digits", u"/:/:/:/:/:/:/", 0, 0}, {"the largest", u"9999999999999", 4, 7},
  };
  // clang-format on
  for (const auto& [reason, code, ean13, itf14] : cases) {
    EXPECT_EQ(StandardObject().GetEAN13ChekDigit(code), ean13) << reason;
    EXPECT_EQ(StandardObject().GetITF14ChekDigit(code), itf14) << reason;
  }
}

}  // namespace
}  // namespace ZQ7Standard
