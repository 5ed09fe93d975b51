#include <ZQ7Standard/BahtStringObject.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "numbers/number_text.h"
#include "text/replace.h"

namespace ZQ7Standard {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(MoneyWords, Thai) {
  const struct {
    const char* reason;
    double amount;
    const char* expected;
    // clang-format off
  } cases[] = {
      {"zero", 0, "ศูนย์บาทถ้วน"}, {"one alone", 1, "หนึ่งบาทถ้วน"}, {"ten has no one", 10, "สิบบาทถ้วน"},
      {"final one after tens", 21, "ยี่สิบเอ็ดบาทถ้วน"},
      {"final one after hundreds", 101, "หนึ่งร้อยเอ็ดบาทถ้วน"},
      {"both parts", 121.50, "หนึ่งร้อยยี่สิบเอ็ดบาทห้าสิบสตางค์"},
      {"ten million and one", 10000001, "สิบล้านเอ็ดบาทถ้วน"},
      {"a one of the millions is no digit before", 1000001, "หนึ่งล้านหนึ่งบาทถ้วน"},
      {"eleven million", 11000000, "สิบเอ็ดล้านบาทถ้วน"},
      {"final one used up by the millions", 11000001, "สิบเอ็ดล้านหนึ่งบาทถ้วน"},
      {"zero at the first million", 10000000, "สิบล้านบาทถ้วน"},
      {"million million", 1000000000000, "หนึ่งล้านล้านบาทถ้วน"},
      {"no unit below one", 0.50, "ห้าสิบสตางค์"}, {"eleven satang", 0.11, "สิบเอ็ดสตางค์"},
      {"lone satang after baht", 20.01, "ยี่สิบบาทหนึ่งสตางค์"},
      {"carried one satang", 20.21, "ยี่สิบบาทยี่สิบเอ็ดสตางค์"},
      {"fraction that rounds away", 5.001, "ห้าบาทสตางค์"},
      {"fraction that rounds up", 5.999, "หกบาทสตางค์"},
      {"rounds up to one, but is below it", 0.999, "หนึ่งสตางค์"}, {"almost nothing", 0.001, "สตางค์"},
      {"negative with a fraction", -5.25, "ห้าถ้วน"}, {"negative", -5, "ห้าถ้วน"},
      {"negative below one", -0.5, "ถ้วน"},
      {"tie of the printed value", 2.345, "สองบาทสามสิบห้าสตางค์"}, {"too large", 10000000000000, ""},
      {"infinite", -kInfinity, ""}, {"no number", std::nan(""), ""},
  };
  // clang-format on
  for (const auto& c : cases) {
    EXPECT_EQ(Utf8(BahtStringObject().BahtString(c.amount)), c.expected) << c.reason;
  }
  EXPECT_NE(BahtStringObject().MoneyText(-9999999999999.99), u"");
}

TEST(MoneyWords, English) {
  const struct {
    const char* reason;
    double amount;
    const char* expected;
    // clang-format off
  } cases[] = {
      {"zero", 0, "Zero baht"}, {"one", 1, "One baht"},
      {"both parts", 1234.56, "One thousand two hundred thirty four baht and fifty six satang"},
      {"forty", 44, "Forty four baht"}, {"teens", 13.19, "Thirteen baht and nineteen satang"},
      {"satang alone, leading blank", 0.56, " baht and fifty six satang"},
      {"satang below ten", 2.05, "Two baht and five satang"},
      {"empty groups", 1000000, "One million baht"},
      {"empty group inside", 1000000001, "One billion one baht"},
      {"hundreds of thousands", 900100, "Nine hundred thousand one hundred baht"},
      {"negative", -7, "Negative seven baht"},
      {"negative below one", -0.5, "Negative baht and fifty satang"},
      {"rounds to zero", 0.001, "Zero baht"}, {"rounds up", 1.999, "Two baht"},
      {"largest scale", 1e12, "One trillion baht"}, {"no scale", 1e15, "One ? baht"},
      {"no number", std::nan(""), ""},
  };
  // clang-format on
  for (const auto& c : cases) {
    EXPECT_EQ(Utf8(BahtStringObject().BahtStringE(c.amount)), c.expected) << c.reason;
  }
}

TEST(MoneyWords, UnitsAndBreaks) {
  const struct {
    const char* reason;
    double amount;
    bool use_break, english;
    const char16_t* unit;
    const char16_t* sub_unit;
    const char* expected;
  } cases[] = {
      {"Thai with breaks", 1, true, false, u"", u"", "=หนึ่งบาทถ้วน="},
      {"zero has no breaks", 0, true, false, u"", u"", "ศูนย์บาทถ้วน"},
      {"English zero has no blank", 0, true, true, u"", u"", "Zerobaht"},
      {"English zero keeps the unit's case", 0, false, true, u"THB", u"", "ZeroTHB"},
      {"Thai zero ignores the unit", 0, false, false, u"Dollar", u"", "ศูนย์บาทถ้วน"},
      {"English with breaks", 1, true, true, u"", u"", "=One baht="},
      {"other unit, no plural", 1234.56, false, true, u"Dollar", u"",
       "One thousand two hundred thirty four dollar and fifty six cent"},
      {"sub-unit is overridden", 1.5, false, true, u"Dollar", u"dime", "One dollar and fifty cent"},
      {"sub-unit of baht in any case", 1.5, false, true, u"tHb", u"x", "One thb and fifty satang"},
      {"Thai with another unit keeps the final one", 20.01, false, false, u"ดอลลาร์", u"",
       "ยี่สิบดอลลาร์เอ็ดcent"},
      {"Thai words with an English unit", 1.5, false, false, u"Baht", u"", "หนึ่งBahtห้าสิบsatang"},
      {"unit that is the English sub-unit", 1.5, false, true, u"Satang", u"",
       "One cent and fifty cent"},
      {"lower case beyond A to Z", 2, false, true, u"ÉCU Ω", u"", "Two écu ω"},
      {"too large has no breaks", 1e14, true, true, u"", u"", ""},
  };
  for (const auto& c : cases) {
    const Text words =
        BahtStringObject().MoneyText(c.amount, c.use_break, c.english, c.unit, c.sub_unit);
    EXPECT_EQ(Utf8(words), c.expected) << c.reason;
  }
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

/// What Thai words say, read back: digits by their words and places.
std::uint64_t ReadThaiWords(TextView words) {
  constexpr TextView kDigits[] = {u"หนึ่ง", u"สอง", u"สาม", u"สี่",  u"ห้า",
                                  u"หก",  u"เจ็ด", u"แปด", u"เก้า"};
  constexpr TextView kPlaces[] = {u"สิบ", u"ร้อย", u"พัน", u"หมื่น", u"แสน"};
  std::uint64_t total = 0;
  std::uint64_t group = 0;
  std::uint64_t digit = 0;
  const auto take = [&words](TextView word) {
    const bool taken = words.starts_with(word);
    if (taken) words.remove_prefix(word.size());
    return taken;
  };
  while (!words.empty()) {
    const std::size_t before = words.size();
    std::uint64_t unit = 1;
    if (take(u"เอ็ด")) digit = 1;
    if (take(u"ยี่")) digit = 2;
    for (std::uint64_t i = 0; i < 9; ++i) {
      if (take(kDigits[i])) digit = i + 1;
    }
    for (const TextView place : kPlaces) {
      unit *= 10;
      if (!take(place)) continue;
      group += (digit == 0 ? 1 : digit) * unit;
      digit = 0;
    }
    if (take(u"ล้าน")) {
      total = (total + group + digit) * 1'000'000;
      group = digit = 0;
    }
    if (words.size() == before) break;
  }
  return total + group + digit;
}

// Every pattern of zero and other digits in thirteen digits, with and without
// satang: the words must say the amount.
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
    ASSERT_EQ(thai, object.MoneyText(static_cast<double>(amount), false, false, u"บาท"));
    const Text english = object.MoneyTextE(static_cast<double>(amount));
    ASSERT_EQ(english.find(u"  "), Text::npos) << Utf8(english);
  }
}

}  // namespace
}  // namespace ZQ7Standard
