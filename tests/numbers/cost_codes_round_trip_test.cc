// Encodes and decodes every price up to 100,000.00.

#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

using namespace ZQ7Standard;

static constexpr TextView kLetters = u"BLACKHORSE";
static constexpr TextView kMarks = u"/:,+*#@![]";
static constexpr TextView kThai = u"กิขคงจฉชซฌ";  // the second unit is a mark above the first

TEST(CostCodes, EveryPriceReadsBack) {
  const StandardObject object;
  for (int satang = 0; satang <= 100'000'00; satang += ZQ7_PRICE_STEP) {
    const double price = satang / 100.0;
    const double expected = object.FixNumber(price, 2);
    const Text code = object.FormatCostCode(price, kLetters);
    ASSERT_EQ(object.DeFormatCostCode(code, kLetters), expected) << Utf8(code);
    const Text negative = object.FormatCostCode2(-price, kMarks, u"x");
    ASSERT_EQ(object.DeFormatCostCode2(negative, kMarks, u"X"), -expected) << Utf8(negative);
    const Text thai = object.FormatCostCode2(price, kThai, u"์");
    ASSERT_EQ(object.DeFormatCostCode2(thai, kThai, u"์"), expected) << Utf8(thai);
  }
}
