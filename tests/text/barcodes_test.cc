#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

namespace ZQ7Standard {
namespace {

const StandardObject kObject;

TEST(ChekDigit, MatchesPrintedCodes) {
  const struct {
    const char* reason;
    TextView code;
    int ean13, itf14;
  } cases[] = {
      {"11 characters", u"40063813339", -1, -1},
      {"12 characters", u"400638133393", 1, -1},
      {"the whole EAN-13", u"4006381333931", 1, 4},
      {"ITF-14", u"1540014128876", 5, 3},
      {"ten is 0", u"0000000000019", 7, 2},
      {"what is no digit is 0", u"4๐06a8 33393x", 5, 9},
      {"characters beside the digits", u"/:/:/:/:/:/:/", 0, 0},
      {"the largest sum", u"9999999999999", 4, 7},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.GetEAN13ChekDigit(c.code), c.ean13) << c.reason;
    EXPECT_EQ(kObject.GetITF14ChekDigit(c.code), c.itf14) << c.reason;
  }
}

}  // namespace
}  // namespace ZQ7Standard
