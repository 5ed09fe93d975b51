#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

const StandardObject kObject;

TEST(ReverseString, TurnsCodeUnits) {
  EXPECT_EQ(kObject.ReverseString(u"น้ำ1"), u"1ำ้น");
  EXPECT_EQ(kObject.ReverseString(u"\xD83D\xDE00"), u"\xDE00\xD83D");
  EXPECT_EQ(kObject.ReverseString(u""), u"");
}

TEST(TrimSpaceToOne, ShrinksRunsOfBlanks) {
  const struct {
    TextView text, neither, front, back, both;
  } cases[] = {
      {u"  a   b  ", u" a b ", u"a b ", u" a b", u"a b"},
      {u"   ", u" ", u"", u"", u""},
      {u"", u"", u"", u"", u""},
      {u"a\t\tb", u"a\t\tb", u"a\t\tb", u"a\t\tb", u"a\t\tb"},
      {u" \t  \u00A0", u" \t \u00A0", u"\t \u00A0", u" \t \u00A0", u"\t \u00A0"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.TrimSpaceToOne(c.text, false, false), c.neither) << Utf8(c.text);
    EXPECT_EQ(kObject.TrimSpaceToOne(c.text, true, false), c.front) << Utf8(c.text);
    EXPECT_EQ(kObject.TrimSpaceToOne(c.text, false, true), c.back) << Utf8(c.text);
    EXPECT_EQ(kObject.TrimSpaceToOne(c.text), c.both) << Utf8(c.text);
  }
}

TEST(IncreaseString, CountsUpTheEndOfAKey) {
  const Text nines(400, u'9');
  const struct {
    const char* reason;
    Text key;
    TextView step;
    Text expected;
  } cases[] = {
      {"by one", u"INV0099", u"", u"INV0100"},
      {"by a number", u"A009", u"5", u"A014"},
      {"grows", u"A999", u"", u"A1000"},
      {"nothing but digits", u"9", u"", u"10"},
      {"behind a dash", u"X-0010", u"", u"X-0011"},
      {"given but zero", u"PO-12", u"0", u"PO-12"},
      {"given but no number", u"PO-12", u"x", u"PO-12"},
      {"given but blank", u"PO-12", u" ", u"PO-12"},
      {"given but negative", u"PO-12", u"-1", u"PO-12"},
      {"by a typed number", u"A0009", u"1,000", u"A1009"},
      {"by a fraction", u"A0009", u".5", u"A09.5"},
      {"by a percentage", u"A0009", u"50%", u"A09.5"},
      {"no number", u"ABC", u"", u"ABC"},
      {"no number, with a step", u"ABC", u"1", u"ABC1"},
      {"zeros are no number", u"A000", u"", u"A000"},
      {"zeros are no number, with a step", u"A000", u"5", u"A0005"},
      {"only the last digits", u"1A1", u"", u"1A2"},
      {"Thai digits are no digits", u"A๑2", u"", u"A๑3"},
      {"empty", u"", u"", u""},
      {"empty, with a step", u"", u"7", u"7"},
      {"15 digits", u"A999999999999998", u"", u"A999999999999999"},
      {"an exponent from 10^15", u"A999999999999999", u"", u"A00000000001E+15"},
      {"16 digits are rounded", u"1234567890123456", u"", u"1.23456789012346E+15"},
      {"the digits that a double holds", nines, u"",
       Text(nines, 0, 92).append(302, u'0').append(u"1E+308")},
      {"309 digits are within a double from 1 on", Text(u"A1").append(308, u'0'), u"",
       Text(u"A").append(303, u'0').append(u"1E+308")},
      {"no end of zeros in front", Text(u"A").append(400, u'0').append(u"9"), u"",
       Text(u"A").append(399, u'0').append(u"10")},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.IncreaseString(c.key, c.step), c.expected) << c.reason;
  }
  const Text largest = Text(u"17").append(307, u'0');
  EXPECT_EQ(ErrorOf([&] { kObject.IncreaseString(largest, largest); }), 6);
}

TEST(FormatTextSort, FillsToALength) {
  const struct {
    const char* reason;
    TextView text;
    std::int16_t length;
    TextView expected;
  } cases[] = {
      {"number, in upper case", u"inv12", 8, u"INV00012"},
      {"number alone", u"123", 6, u"000123"},
      {"number cut at its front", u"a12345", 3, u"A45"},
      {"no room for the number", u"ab12", 2, u"AB"},
      {"no number, case kept", u"abc", 5, u"abc01"},
      {"no number, room for the 1", u"abc", 4, u"abc1"},
      {"no number, no room", u"AB", 2, u"AB"},
      {"0 at the end is no number", u"A10", 5, u"A1001"},
      {"zeros in front belong to it", u"a007", 6, u"A00007"},
      {"so do a mark and blanks", u"a1.5", 6, u"A001.5"},
      {"blank inside", u"a1 2", 6, u"A001 2"},
      {"a minus sign does not", u"a-5", 6, u"A-0005"},
      {"a plus sign does", u"a+5", 6, u"A000+5"},
      {"Thai has no case", u"กé7", 5, u"กÉ007"},
      {"empty", u"", 5, u"00001"},
      {"empty at 1", u"", 1, u"1"},
      {"empty at 0", u"", 0, u""},
      {"number at 0", u"12", 0, u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.FormatTextSort(c.text, c.length), c.expected) << c.reason;
  }
  EXPECT_EQ(kObject.FormatTextSort(u"a1", 16383).size(), 16383U);
  EXPECT_EQ(kObject.FormatTextSort(u"a", 32767).size(), 32767U);
  const struct {
    TextView text;
    std::int16_t length;
    int error;
  } refused[] = {{u"ABC", 2, 5},   {u"ABC1", 2, 5},   {u"", -1, 5},     {u"1", -1, 5},
                 {u"", -32768, 5}, {u"a1", 16384, 6}, {u"1", -16385, 6}};
  for (const auto& c : refused) {
    EXPECT_EQ(ErrorOf([&] { kObject.FormatTextSort(c.text, c.length); }), c.error) << c.length;
  }
}

TEST(Instr2, SearchesFromEitherEnd) {
  const auto binary = ZQ7CompareBinary;
  const auto text = ZQ7CompareText;
  const struct {
    const char* reason;
    std::int32_t start;
    TextView main, search;
    ZQ7CompareMethod compare;
    bool from_back;
    std::int32_t expected;
  } cases[] = {
      {"first", 1, u"abcabc", u"bc", binary, false, 2},
      {"at the start", 2, u"abcabc", u"bc", binary, false, 2},
      {"after the start", 3, u"abcabc", u"bc", binary, false, 5},
      {"none left", 6, u"abcabc", u"bc", binary, false, 0},
      {"case counts", 1, u"abc", u"B", binary, false, 0},
      {"case does not count", 2, u"abcABC", u"Bc", text, false, 2},
      {"case of other letters, after the start", 3, u"éÉé", u"É", text, false, 3},
      {"both sigmas", 1, u"ας", u"Σ", text, false, 2},
      {"no text found without case", 1, u"abc", u"d", text, false, 0},
      {"other comparisons are binary", 1, u"abc", u"B", static_cast<ZQ7CompareMethod>(2), false, 0},
      {"empty is at the start", 2, u"abc", u"", binary, false, 2},
      {"empty without case", 3, u"abc", u"", text, false, 3},
      {"empty beyond the end", 4, u"abc", u"", binary, false, 0},
      {"beyond the end", 2147483647, u"abc", u"c", text, false, 0},
      {"in nothing", 1, u"", u"", binary, false, 0},
      {"last", 1, u"abcabc", u"bc", binary, true, 5},
      {"overlapping, last", 1, u"aaa", u"aa", binary, true, 2},
      {"start ignored", -5, u"abcabc", u"bc", binary, true, 5},
      {"comparison ignored", 1, u"abc", u"B", text, true, 0},
      {"empty is nowhere from the back", 1, u"abc", u"", binary, true, 0},
      {"longer than the text", 1, u"abc", u"abcd", binary, true, 0},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.Instr2(c.start, c.main, c.search, c.compare, c.from_back), c.expected)
        << c.reason;
  }
  EXPECT_EQ(ErrorOf([] { kObject.Instr2(0, u"abc", u"a"); }), 5);
  EXPECT_EQ(ErrorOf([] { kObject.Instr2(-1, u"", u"", ZQ7CompareText); }), 5);
}

std::int32_t RandomWith(float draw, std::int32_t low, std::int32_t high) {
  const StandardObject object({.random_source = std::make_shared<FakeRandomSource>(draw)});
  return object.Random(low, high);
}

TEST(Random, RoundsTheDraw) {
  constexpr float kLargest = 0x1.FFFFFEp-1F;
  const struct {
    float draw;
    std::int32_t low, high, expected;
  } cases[] = {
      {0, 1, 6, 1},
      {kLargest, 1, 6, 7},
      {0.25F, 1, 6, 3},  // 1.5 to even
      {0.75F, 1, 6, 5},  // 4.5 to even
      {0.5F, 1, 1, 1},
      {0.625F, 1, 1, 2},
      {kLargest, 5, 4, 5},
      {kLargest, 5, 1, 2},
      {0.5F, -100, 100, 0},
      {0, -2147483647 - 1, -2, -2147483647 - 1},
      {kLargest, 0, 2147483646, 2147483519},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(RandomWith(c.draw, c.low, c.high), c.expected) << c.draw << ' ' << c.low;
  }
  constexpr auto kMin = std::numeric_limits<std::int32_t>::min();
  constexpr auto kMax = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(ErrorOf([] { RandomWith(0, kMin, 0); }), 6) << "difference";
  EXPECT_EQ(ErrorOf([] { RandomWith(0, 1, kMin); }), 6) << "difference below";
  EXPECT_EQ(ErrorOf([] { RandomWith(0, 0, kMax); }), 6) << "difference + 1";
  EXPECT_EQ(ErrorOf([] { RandomWith(kLargest, kMax - 1, kMax); }), 6) << "result";
}

TEST(Random, DrawsTheWholeRange) {
  std::array<int, 5> counts{};
  for (int i = 0; i < 20000; ++i) ++counts.at(static_cast<std::size_t>(kObject.Random(0, 3)));
  for (std::size_t i = 0; i < counts.size(); ++i) {
    const double share = i == 0 || i == 4 ? 0.125 : 0.25;
    EXPECT_NEAR(counts[i] / 20000.0, share, 0.03) << i;
  }
}

}  // namespace
}  // namespace ZQ7Standard
