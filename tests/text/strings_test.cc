#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "base/search.h"
#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

const StandardObject kObject;

TEST(ReverseString, TurnsCodeUnits) {
  EXPECT_EQ(kObject.ReverseString(u"น้ำ1"), u"1ำ้น");
  EXPECT_EQ(kObject.ReverseString(u"\xD83D\xDE00"), u"\xDE00\xD83D");
}

TEST(TrimSpaceToOne, ShrinksRunsOfBlanks) {
  // A text with its blanks not trimmed, trimmed in front, at the end, at both ends.
  const std::array<TextView, 5> cases[] = {
      {u"  a   b  ", u" a b ", u"a b ", u" a b", u"a b"},
      {u"   ", u" ", u"", u"", u""},
      {u" \t\t  \u00A0", u" \t\t \u00A0", u"\t\t \u00A0", u" \t\t \u00A0", u"\t\t \u00A0"},
  };
  for (const auto& [text, neither, front, back, both] : cases) {
    EXPECT_EQ(kObject.TrimSpaceToOne(text, false, false), neither) << Utf8(text);
    EXPECT_EQ(kObject.TrimSpaceToOne(text, true, false), front) << Utf8(text);
    EXPECT_EQ(kObject.TrimSpaceToOne(text, false, true), back) << Utf8(text);
    EXPECT_EQ(kObject.TrimSpaceToOne(text), both) << Utf8(text);
  }
}

TEST(IncreaseString, CountsUpTheEndOfAKey) {
  const Text nines(400, u'9'), zeros(308, u'0');
  // clang-format off
  const std::tuple<const char*, Text, TextView, Text> cases[] = {
      {"by one", u"X-0099", u"", u"X-0100"}, {"by a typed number", u"A0009", u"1,000", u"A1009"},
      {"by a fraction", u"A0009", u".5", u"A09.5"}, {"grows", u"9", u"", u"10"},
      {"given but zero", u"PO-12", u"0", u"PO-12"}, {"or blank", u"PO-12", u" ", u"PO-12"},
      {"given but negative", u"PO-12", u"-1", u"PO-12"}, {"no number", u"ABC", u"", u"ABC"},
      {"zeros are no number", u"A000", u"5", u"A0005"}, {"empty", u"", u"", u""},
      {"only the last digits, Thai ones are none", u"1๑2", u"", u"1๑3"},
      {"15 digits", u"A999999999999998", u"", u"A999999999999999"},
      {"an exponent from 10^15", u"A999999999999999", u"", u"A00000000001E+15"},
      {"16 digits are rounded", u"1234567890123456", u"", u"1.23456789012346E+15"},
      {"308 digits are a double", nines, u"", nines.substr(308) + zeros.substr(6) + u"1E+308"},
      {"309 digits are from a 1 on", u"A1" + zeros, u"", u"A" + zeros.substr(5) + u"1E+308"},
      {"no end of zeros in front", zeros + zeros + u"9", u"", zeros + zeros.substr(1) + u"10"},
  };
  // clang-format on
  for (const auto& [reason, key, step, expected] : cases) {
    EXPECT_EQ(kObject.IncreaseString(key, step), expected) << reason;
  }
  const Text largest = u"17" + zeros.substr(1);
  EXPECT_EQ(ErrorOf([&] { kObject.IncreaseString(largest, largest); }), 6);
}

TEST(FormatTextSort, FillsToALength) {
  // clang-format off
  const std::tuple<const char*, TextView, std::int16_t, TextView> cases[] = {
      {"number, in upper case", u"inv12", 8, u"INV00012"}, {"number alone", u"123", 6, u"000123"},
      {"number cut at its front", u"a12345", 3, u"A45"}, {"no room for it", u"ab12", 2, u"AB"},
      {"no number, case kept", u"abc", 5, u"abc01"}, {"no number, no room", u"ab", 2, u"ab"},
      {"0 at the end is no number", u"a10", 5, u"a1001"}, {"zeros", u"a007", 6, u"A00007"},
      {"a point and blanks too", u"a1. 5", 6, u"A01. 5"}, {"a plus sign", u"a+5", 6, u"A000+5"},
      {"a minus sign ends it", u"a-5", 6, u"A-0005"}, {"no length", u"12", 0, u""},
      {"a zero before a sign is none", u"0+5", 6, u"0000+5"}, {"a pasted tab", u"a\t5", 5, u"A00\t5"},
      {"zeros among marks", u"a0 ,0%.5", 9, u"A00 ,0%.5"},
      {"upper case of any script", u"กé7", 5, u"กÉ007"}, {"empty", u"", 5, u"00001"},
  };
  // clang-format on
  for (const auto& [reason, text, length, expected] : cases) {
    EXPECT_EQ(kObject.FormatTextSort(text, length), expected) << reason;
  }
  const std::tuple<TextView, std::int16_t, int> limits[] = {
      {u"ABC", 2, 5},   {u"ABC1", 2, 5},  {u"", -1, 5},      {u"1", -1, 5},   {u"", -32768, 5},
      {u"1", 16383, 0}, {u"1", 16384, 6}, {u"1", -16385, 6}, {u"a", 32767, 0}};
  for (const auto& [text, length, error] : limits) {
    const auto call = [text = text, length = length] { kObject.FormatTextSort(text, length); };
    EXPECT_EQ(ErrorOf(call), error) << Utf8(text) << length;
  }
}

TEST(Instr2, SearchesFromEitherEnd) {
  const auto binary = ZQ7CompareBinary, text = ZQ7CompareText;
  // The last two are the positions found from the front and from the back.
  const std::tuple<int, TextView, TextView, ZQ7CompareMethod, int, int> cases[] = {
      {2, u"abcabc", u"bc", binary, 2, 5}, {3, u"abcabc", u"bc", binary, 5, 5},
      {1, u"abc", u"B", binary, 0, 0},     {1, u"abc", u"bc", binary, 2, 2},
      {2, u"abcABC", u"Bc", text, 2, 0},   {3, u"éÉé", u"É", text, 3, 2},
      {1, u"ας", u"Σ", text, 2, 0},        {1, u"abc", u"abd", text, 0, 0},
      {2, u"abc", u"", binary, 2, 0},      {3, u"abc", u"", text, 3, 0},
      {4, u"abc", u"", binary, 0, 0},      {2147483647, u"abc", u"c", text, 0, 3},
      {1, u"", u"", binary, 0, 0},         {1, u"aaa", u"aa", binary, 1, 2}};
  for (const auto& [start, main, search, compare, expected, from_back] : cases) {
    EXPECT_EQ(kObject.Instr2(start, main, search, compare), expected) << start << Utf8(search);
    EXPECT_EQ(kObject.Instr2(-1, main, search, compare, true), from_back) << Utf8(search);
  }
  EXPECT_EQ(ErrorOf([] { kObject.Instr2(0, u"", u"", ZQ7CompareText); }), 5);
  for (const int other : {-1, 2, 7}) {
    const auto compare = static_cast<ZQ7CompareMethod>(other);
    EXPECT_EQ(ErrorOf([&] { kObject.Instr2(1, u"abc", u"b", compare); }), 5) << other;
    EXPECT_EQ(kObject.Instr2(1, u"abc", u"b", compare, true), 2) << other;
  }
}

// All short texts and parts of two letters, and long ones that nearly repeat.
TEST(SearchBreadth, AgreesWithThePlainSearch) {
  const auto letters = [](std::size_t bits, std::size_t size) {
    Text text(size, u'a');
    for (std::size_t i = 0; i < size; ++i) text[i] += static_cast<char16_t>((bits >> i) & 1U);
    return text;
  };
  const auto same = [](char16_t a, char16_t b) { return a == b; };
  const auto check = [&](const Text& text, const Text& part) {
    for (std::size_t from = 0; from <= text.size(); from += 3) {
      ASSERT_EQ(FindFirst(text, part, from, same), text.find(part, from)) << Utf8(text);
      ASSERT_EQ(FindFirst(text, part, from), text.find(part, from)) << Utf8(text);
    }
    ASSERT_EQ(FindLast(text, part), text.rfind(part)) << Utf8(text) << ' ' << Utf8(part);
  };
  for (std::size_t bits = 0; bits < 256 * 32; ++bits) {
    const Text part = letters(bits / 256, 1 + bits % 5);
    check(letters(bits % 256, 8), part);
    const Text longer = part + part + part + part + u"ab" + part + part;
    check(letters(bits % 256, 8) + longer + longer + part, longer.substr(bits % 4) + part);
  }
}

constexpr float kLargest = 0x1.FFFFFEp-1F;
constexpr auto kMin = std::numeric_limits<std::int32_t>::min();
constexpr auto kMax = std::numeric_limits<std::int32_t>::max();

std::int32_t RandomWith(float draw, std::int32_t low, std::int32_t high) {
  const StandardObject object({.random_source = std::make_shared<FakeRandomSource>(draw)});
  return object.Random(low, high);
}

TEST(Random, RoundsTheDrawHalvesToEven) {
  const std::tuple<float, int, int, int> cases[] = {
      {0, 1, 6, 1},        {0.25F, 1, 6, 3},    {0.75F, 1, 6, 5},
      {kLargest, 1, 6, 7}, {0.5F, 1, 1, 1},     {0.625F, 1, 1, 2},
      {kLargest, 5, 4, 5}, {kLargest, 5, 1, 2}, {kLargest, 0, 2147483646, 2147483519}};
  for (const auto& [draw, low, high, expected] : cases) {
    EXPECT_EQ(RandomWith(draw, low, high), expected) << draw << ' ' << low;
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
