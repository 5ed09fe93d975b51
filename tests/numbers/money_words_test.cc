#include <ZQ7Standard/BahtStringObject.h>

#include <algorithm>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

TEST(MoneyWords, Thai) {
  // clang-format off
  ExpectRows<double>([](double amount) { return BahtStringObject().BahtString(amount); }, {
      {0, "ศูนย์บาทถ้วน"}, {1, "หนึ่งบาทถ้วน"}, {10, "สิบบาทถ้วน"}, {21, "ยี่สิบเอ็ดบาทถ้วน"},
      {101, "หนึ่งร้อยเอ็ดบาทถ้วน"}, {121.50, "หนึ่งร้อยยี่สิบเอ็ดบาทห้าสิบสตางค์"},
      {10000001, "สิบล้านเอ็ดบาทถ้วน"}, {11000000, "สิบเอ็ดล้านบาทถ้วน"},
      {1000001, "หนึ่งล้านหนึ่งบาทถ้วน", "a one of the millions is no digit before"},
      {11000001, "สิบเอ็ดล้านหนึ่งบาทถ้วน", "final one used up by the millions"},
      {10000000, "สิบล้านบาทถ้วน"}, {1000000000000, "หนึ่งล้านล้านบาทถ้วน"},
      {0.50, "ห้าสิบสตางค์"}, {0.11, "สิบเอ็ดสตางค์"}, {20.21, "ยี่สิบบาทยี่สิบเอ็ดสตางค์"},
      {20.01, "ยี่สิบบาทหนึ่งสตางค์", "lone satang after baht"},
      {5.001, "ห้าบาทสตางค์"}, {5.999, "หกบาทสตางค์"}, {0.001, "สตางค์"},
      {0.999, "หนึ่งสตางค์", "rounds up to one, but is below it"},
      {-5.25, "ห้าถ้วน"}, {-5, "ห้าถ้วน"}, {-0.5, "ถ้วน"},
      {2.345, "สองบาทสามสิบห้าสตางค์", "tie of the printed value"}, {10000000000000, ""},
      {-kInfinity, ""}, {kNan, ""}});
  // clang-format on
  EXPECT_NE(BahtStringObject().MoneyText(-9999999999999.99), u"");
}

TEST(MoneyWords, English) {
  // clang-format off
  ExpectRows<double>([](double amount) { return BahtStringObject().BahtStringE(amount); }, {
      {0, "Zero baht"}, {1, "One baht"}, {44, "Forty four baht"}, {0.001, "Zero baht"},
      {1234.56, "One thousand two hundred thirty four baht and fifty six satang"},
      {13.19, "Thirteen baht and nineteen satang"}, {2.05, "Two baht and five satang"},
      {0.56, " baht and fifty six satang"}, {1000000, "One million baht"},
      {1000000001, "One billion one baht"}, {900100, "Nine hundred thousand one hundred baht"},
      {-7, "Negative seven baht"}, {-0.5, "Negative baht and fifty satang"},
      {1.999, "Two baht"}, {1e12, "One trillion baht"}, {1e15, "One ? baht"}, {kNan, ""}});
  // clang-format on
}

TEST(MoneyWords, UnitsAndBreaks) {
  const auto call = [](auto... row) { return BahtStringObject().MoneyText(row...); };
  // clang-format off
  ExpectRows<double, bool, bool, TextView, TextView>(call, {
      {{1, true, false, u"", u""}, "=หนึ่งบาทถ้วน="}, {{0, true, false, u"", u""}, "ศูนย์บาทถ้วน"},
      {{1, true, true, u"", u""}, "=One baht="}, {{0, true, true, u"", u""}, "Zerobaht"},
      {{0, false, true, u"THB", u""}, "ZeroTHB"}, {{1e14, true, true, u"", u""}, ""},
      {{0, false, false, u"Dollar", u""}, "ศูนย์บาทถ้วน", "Thai zero ignores the unit"},
      {{1234.56, false, true, u"Dollar", u""},
      "One thousand two hundred thirty four dollar and fifty six cent"},
      {{1.5, false, true, u"Dollar", u"dime"}, "One dollar and fifty cent"},
      {{1.5, false, true, u"tHb", u"x"}, "One thb and fifty satang"},
      {{20.01, false, false, u"ดอลลาร์", u""}, "ยี่สิบดอลลาร์เอ็ดcent", "keeps the final one"},
      {{1.5, false, false, u"Baht", u""}, "หนึ่งBahtห้าสิบsatang"},
      {{1.5, false, true, u"Satang", u""}, "One cent and fifty cent"},
      {{2, false, true, u"ÉCU Ω", u""}, "Two écu ω", "lower case beyond A to Z"}});
  // clang-format on
}

TEST(MoneyWords, AnInstanceKeepsItsLastUnits) {
  BahtStringObject object;
  EXPECT_EQ(Utf8(object.MoneyTextT(1.5)), "หนึ่งบาทห้าสิบสตางค์");
  object.MoneyText(1, false, true);
  EXPECT_EQ(Utf8(object.BahtStringT(1.5)), "หนึ่งbahtห้าสิบsatang");
  object.MoneyText(0, false, false, u"เยน");
  EXPECT_EQ(Utf8(object.BahtStringT(1.5)), "หนึ่งเยนห้าสิบcent");
  EXPECT_EQ(object.MonthText(1, true, true), u"");
  EXPECT_NE(object.About(), u"");
}

/// Reads an amount back from its Thai words.
static std::uint64_t ReadThaiWords(TextView words) {
  const std::pair<TextView, std::uint64_t> names[] = {
      {u"หนึ่ง", 1},      {u"เอ็ด", 1},      {u"สอง", 2},   {u"ยี่", 2},     {u"สาม", 3},
      {u"สี่", 4},        {u"ห้า", 5},       {u"หก", 6},    {u"เจ็ด", 7},   {u"แปด", 8},
      {u"เก้า", 9},      {u"สิบ", 10},      {u"ร้อย", 100}, {u"พัน", 1000}, {u"หมื่น", 10000},
      {u"แสน", 100000}, {u"ล้าน", 1000000}};
  std::uint64_t millions = 0;
  std::uint64_t group = 0;
  std::uint64_t digit = 0;
  while (!words.empty()) {
    const auto name = std::ranges::find_if(
        names, [&](const auto& entry) { return words.starts_with(entry.first); });
    if (name == std::end(names)) return 0;
    words.remove_prefix(name->first.size());
    const std::uint64_t number = name->second;
    if (number >= 10 && number < 1000000) group += std::max<std::uint64_t>(digit, 1) * number;
    if (number == 1000000) millions = (millions + std::exchange(group, 0) + digit) * number;
    digit = number < 10 ? number : 0;
  }
  return millions + group + digit;
}

// Every pattern of zero and other digits in thirteen digits: the words must state the amount.
TEST(MoneyWordsBreadth, EveryPatternOfZerosReadsBack) {
  BahtStringObject object;
  for (std::uint64_t pattern = 1; pattern < (1U << 13); ++pattern) {
    std::uint64_t amount = 0;
    for (unsigned place = 13; place-- > 0;) {
      amount = amount * 10 + ((pattern >> place) & 1U) * (1 + (place * 7 + pattern) % 9);
    }
    const Text thai = object.MoneyText(static_cast<double>(amount));
    ASSERT_TRUE(thai.ends_with(u"บาทถ้วน")) << amount;
    ASSERT_EQ(ReadThaiWords(TextView(thai).substr(0, thai.size() - 7)), amount) << Utf8(thai);
    const Text english = object.MoneyTextE(static_cast<double>(amount));
    ASSERT_EQ(english.find(u"  "), Text::npos) << Utf8(english);
  }
}
