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
  const struct {
    const char* reason;
    Text key;
    TextView step;
    Text expected;
  } cases[] = {
      {"by one", u"X-0099", u"", u"X-0100"},
      {"by a typed number", u"A0009", u"1,000", u"A1009"},
      {"by a fraction", u"A0009", u".5", u"A09.5"},
      {"grows", u"9", u"", u"10"},
      {"given but zero", u"PO-12", u"0", u"PO-12"},
      {"given but no number", u"PO-12", u" ", u"PO-12"},
      {"given but negative", u"PO-12", u"-1", u"PO-12"},
      {"no number", u"ABC", u"", u"ABC"},
      {"zeros are no number", u"A000", u"5", u"A0005"},
      {"only the last digits, Thai ones are none", u"1๑2", u"", u"1๑3"},
      {"empty", u"", u"", u""},
      {"15 digits", u"A999999999999998", u"", u"A999999999999999"},
      {"an exponent from 10^15", u"A999999999999999", u"", u"A00000000001E+15"},
      {"16 digits are rounded", u"1234567890123456", u"", u"1.23456789012346E+15"},
      {"308 digits are within a double", Text(400, u'9'), u"",
       Text(92, u'9').append(302, u'0').append(u"1E+308")},
      {"309 digits are from a 1 on", Text(u"A1").append(308, u'0'), u"",
       Text(u"A").append(303, u'0').append(u"1E+308")},
      {"no end of zeros in front", Text(400, u'0').append(u"9"), u"",
       Text(399, u'0').append(u"10")},
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
      {"no number, no room", u"ab", 2, u"ab"},
      {"0 at the end is no number", u"a10", 5, u"a1001"},
      {"zeros in front belong to it", u"a007", 6, u"A00007"},
      {"so do a point and blanks", u"a1. 5", 6, u"A01. 5"},
      {"a minus sign does not", u"a-5", 6, u"A-0005"},
      {"a plus sign does", u"a+5", 6, u"A000+5"},
      {"upper case of any script", u"กé7", 5, u"กÉ007"},
      {"empty", u"", 5, u"00001"},
      {"no length", u"12", 0, u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.FormatTextSort(c.text, c.length), c.expected) << c.reason;
  }
  const struct {
    TextView text;
    std::int16_t length;
    int error;
  } limits[] = {{u"ABC", 2, 5},   {u"ABC1", 2, 5},   {u"", -1, 5},
                {u"1", -1, 5},    {u"", -32768, 5},  {u"1", 16383, 0},
                {u"1", 16384, 6}, {u"1", -16385, 6}, {u"a", 32767, 0}};
  for (const auto& c : limits) {
    EXPECT_EQ(ErrorOf([&] { kObject.FormatTextSort(c.text, c.length); }), c.error) << c.length;
  }
}

TEST(Instr2, SearchesFromEitherEnd) {
  const auto binary = ZQ7CompareBinary;
  const auto text = ZQ7CompareText;
  const auto other = static_cast<ZQ7CompareMethod>(2);
  const struct {
    std::int32_t start;
    TextView main, search;
    ZQ7CompareMethod compare;
    std::int32_t expected, expected_from_back;
  } cases[] = {{2, u"abcabc", u"bc", binary, 2, 5}, {3, u"abcabc", u"bc", binary, 5, 5},
               {1, u"abc", u"B", binary, 0, 0},     {1, u"abc", u"B", other, 0, 0},
               {2, u"abcABC", u"Bc", text, 2, 0},   {3, u"éÉé", u"É", text, 3, 2},
               {1, u"ας", u"Σ", text, 2, 0},        {1, u"abc", u"abd", text, 0, 0},
               {2, u"abc", u"", binary, 2, 0},      {3, u"abc", u"", text, 3, 0},
               {4, u"abc", u"", binary, 0, 0},      {2147483647, u"abc", u"c", text, 0, 3},
               {1, u"", u"", binary, 0, 0},         {1, u"aaa", u"aa", binary, 1, 2}};
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.Instr2(c.start, c.main, c.search, c.compare), c.expected) << Utf8(c.search);
    EXPECT_EQ(kObject.Instr2(-1, c.main, c.search, c.compare, true), c.expected_from_back);
  }
  EXPECT_EQ(ErrorOf([] { kObject.Instr2(0, u"", u"", ZQ7CompareText); }), 5);
}

constexpr float kLargest = 0x1.FFFFFEp-1F;
constexpr auto kMin = std::numeric_limits<std::int32_t>::min();
constexpr auto kMax = std::numeric_limits<std::int32_t>::max();

std::int32_t RandomWith(float draw, std::int32_t low, std::int32_t high) {
  const StandardObject object({.random_source = std::make_shared<FakeRandomSource>(draw)});
  return object.Random(low, high);
}

TEST(Random, RoundsTheDrawHalvesToEven) {
  const struct {
    float draw;
    std::int32_t low, high, expected;
  } cases[] = {{0, 1, 6, 1},        {0.25F, 1, 6, 3},    {0.75F, 1, 6, 5},
               {kLargest, 1, 6, 7}, {0.5F, 1, 1, 1},     {0.625F, 1, 1, 2},
               {kLargest, 5, 4, 5}, {kLargest, 5, 1, 2}, {kLargest, 0, 2147483646, 2147483519}};
  for (const auto& c : cases) {
    EXPECT_EQ(RandomWith(c.draw, c.low, c.high), c.expected) << c.draw << ' ' << c.low;
  }
  EXPECT_EQ(ErrorOf([] { RandomWith(0, kMin, 0); }), 6) << "difference";
  EXPECT_EQ(ErrorOf([] { RandomWith(0, 1, kMin); }), 6) << "difference below";
  EXPECT_EQ(ErrorOf([] { RandomWith(0, 0, kMax); }), 6) << "difference + 1";
  EXPECT_EQ(ErrorOf([] { RandomWith(kLargest, kMax - 1, kMax); }), 6) << "result";
}

TEST(Random, DrawsTheWholeRangeFromTheClock) {
  std::array<int, 3> counts{};
  for (int i = 0; i < 9999; ++i) ++counts.at(static_cast<std::size_t>(kObject.Random(0, 1)));
  EXPECT_NEAR(counts[0], 2500, 300);
  EXPECT_NEAR(counts[1], 5000, 300);
}

}  // namespace
}  // namespace ZQ7Standard
