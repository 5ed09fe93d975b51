#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

const StandardObject kObject;

TEST(AddList, AddsAnItemOnce) {
  const struct {
    const char* reason;
    TextView list, item, separator, expected;
  } cases[] = {
      {"new item", u"a;b", u"c", u";", u"a;b;c"},
      {"listed already", u"a;b;c", u"b", u";", u"a;b;c"},
      {"case counts", u"a;b", u"B", u";", u"a;b;B"},
      {"whole items only", u"abc;d", u"ab", u";", u"abc;d;ab"},
      {"to the empty list", u"", u"x", u";", u"x"},
      {"nothing to the empty list", u"", u"", u",", u""},
      {"empty item", u"x", u"", u";", u"x;"},
      {"empty item listed already", u"x;", u"", u";", u"x;"},
      {"the list ; alone holds two empty items", u";", u"", u";", u";"},
      {"Thai", u"ก;ข", u"ข", u";", u"ก;ข"},
      {"split at ; and joined by another", u"a;b", u"c", u",", u"a,b,c"},
      {"not split at its own separator", u"a,b", u"b", u",", u"a,b,b"},
      {"empty separator is ;", u"a;b", u"c", u"", u"a;b;c"},
      {"separator of many characters", u"a;b", u"c", u" and ", u"a and b and c"},
      {"an item with ; is never listed", u"a;b", u"a;b", u",", u"a,b,a;b"},
      {"marker in the list parts it", u"a$#$b", u"b", u";", u"a;b"},
      {"marker in the item parts it", u"a", u"b$#$c", u";", u"a;b;c"},
      {"item that is two neighbours", u"a;b", u"a$#$b", u";", u"a;b"},
      {"marker made at a border", u"a$#;b", u"x", u";", u"a;#$b;x"},
      {"marker as the separator", u"a;b", u"c", u"$#$", u"a$#$b$#$c"},
      {"half a marker listed", u"$#", u"$#", u";", u"$#"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.AddList(c.list, c.item, c.separator), c.expected) << c.reason;
  }
}

TEST(ArrayString, KeepsTheFirstAndWhatIsNotEmpty) {
  using Texts = std::vector<Text>;
  EXPECT_EQ(kObject.ArrayString2(u"a", u"", u"b"), (Texts{u"a", u"b"}));
  EXPECT_EQ(kObject.ArrayString2(u"", u"x"), (Texts{u"", u"x"}));
  EXPECT_EQ(kObject.ArrayString2(u"", u"", u"c"), (Texts{u"", u"c"}));
  EXPECT_EQ(kObject.ArrayString2(u"a;;b"), (Texts{u"a", u"b"})) << "parted inside";
  EXPECT_EQ(kObject.ArrayString2(u"a;", u"b"), (Texts{u"a", u";b"})) << "first ;; of three ;";
  EXPECT_EQ(kObject.ArrayString2(u";;"), (Texts{u"", u""}));
  EXPECT_EQ(kObject.ArrayString2(u""), Texts{});
  const Texts twenty =
      kObject.ArrayString(u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9", u"10", u"11", u"12",
                          u"13", u"14", u"15", u"16", u"17", u"18", u"19", u"20");
  const Texts thirty =
      kObject.ArrayString2(u"1", u"2", u"3", u"4", u"5", u"6", u"7", u"8", u"9", u"10", u"11",
                           u"12", u"13", u"14", u"15", u"16", u"17", u"18", u"19", u"20", u"21",
                           u"22", u"23", u"24", u"25", u"26", u"27", u"28", u"29", u"30");
  ASSERT_EQ(twenty.size(), 20U);
  ASSERT_EQ(thirty.size(), 30U);
  for (std::size_t i = 0; i < 30; ++i) {
    EXPECT_EQ(kObject.StrVal(thirty[i]), static_cast<double>(i + 1));
    EXPECT_EQ(twenty[i % 20], thirty[i % 20]);
  }
}

TEST(ReverseList, EndsEachItemWithAComma) {
  const struct {
    TextView list, expected;
  } cases[] = {{u"a,b,c", u"c,b,a,"}, {u"a,,b", u"b,,a,"}, {u"a,b,", u"b,a,"}, {u"", u""},
               {u"one", u"one,"},     {u",", u","},        {u",,", u",,"},     {u",a", u"a,,"},
               {u"a;b", u"a;b,"},     {u"ab,c", u"c,ab,"}};
  for (const auto& c : cases) EXPECT_EQ(kObject.ReverseList(c.list), c.expected) << Utf8(c.list);
}

TEST(TrimN, ReadsAField) {
  const struct {
    const char* reason;
    TextView list;
    std::int16_t number;
    TextView expected;
  } cases[] = {
      {"in the middle", u"10,20,30", 2, u"20"},
      {"last of one character", u"10,20,3", 3, u""},
      {"last of two characters", u"1,2,34", 3, u"34"},
      {"one character in all", u"7", 1, u""},
      {"last is blank, never reached", u"10, ", 2, u""},
      {"first of one character", u"7,8", 1, u"7"},
      {"blanks around", u" 7 ,8", 1, u"7"},
      {"field 0", u"10,20", 0, u""},
      {"field below 0", u"10,20", -1, u""},
      {"beyond the fields", u"10,20", 3, u""},
      {"empty", u"", 1, u""},
      {"half to even, down", u"2.5,00", 1, u"2"},
      {"half to even, up", u"3.5,00", 1, u"4"},
      {"sign, zeros and exponent", u"-007,+.1E1", 1, u"-7"},
      {"exponent", u"0,+.1E1", 2, u"1"},
      {"smallest", u"0,-2147483648.5", 2, u"-2147483648"},
      {"an empty field that is not asked for", u",,15", 3, u"15"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.TrimN(c.list, c.number), c.expected) << c.reason;
  }
  for (const TextView list : {u",15", u"ab,1", u"1 2,3", u"1E,2", u"1.2.3,0", u"-,00", u".,00",
                              u"5%,0", u"7\t,0", u"1E5x,0", u"1X5,0"}) {
    EXPECT_EQ(ErrorOf([&] { kObject.TrimN(list, 1); }), 13) << Utf8(list);
  }
  for (const TextView list : {u"2147483648,0", u"2147483647.5,0", u"-2147483649,0", u"1E999,0"}) {
    EXPECT_EQ(ErrorOf([&] { kObject.TrimN(list, 1); }), 6) << Utf8(list);
  }
}

}  // namespace
}  // namespace ZQ7Standard
