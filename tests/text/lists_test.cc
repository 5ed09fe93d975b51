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
      {"new item, as case counts", u"a;b", u"B", u";", u"a;b;B"},
      {"listed already", u"a;ข", u"ข", u";", u"a;ข"},
      {"whole items only", u"abc;d", u"ab", u";", u"abc;d;ab"},
      {"to the empty list", u"", u"x", u";", u"x"},
      {"nothing to the empty list", u"", u"", u",", u""},
      {"empty item", u"x", u"", u";", u"x;"},
      {"the list ; alone holds two empty items", u";", u"", u";", u";"},
      {"split at ; and joined by another", u"a;b", u"c", u",", u"a,b,c"},
      {"not split at its own separator", u"a,b", u"b", u",", u"a,b,b"},
      {"empty separator is ;", u"a;b", u"c", u"", u"a;b;c"},
      {"separator of many characters", u"a;b", u"c", u" and ", u"a and b and c"},
      {"an item with ; is never listed", u"a;b", u"a;b", u",", u"a,b,a;b"},
      {"marker in the list parts it", u"a$#$b", u"b", u";", u"a;b"},
      {"marker in the item parts it", u"a", u"b$#$c", u";", u"a;b;c"},
      {"marker made at a border", u"a$#;b", u"x", u";", u"a;#$b;x"},
      {"marker as the separator", u"a;b", u"c", u"$#$", u"a$#$b$#$c"},
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
  EXPECT_EQ(kObject.ArrayString(u"1", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"",
                                u"", u"", u"", u"", u"", u"19", u"20"),
            (Texts{u"1", u"19", u"20"}));
  EXPECT_EQ(
      kObject.ArrayString2(u"1", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"", u"",
                           u"", u"", u"", u"", u"", u"20", u"21", u"22", u"23", u"24", u"25", u"26",
                           u"27", u"28", u"29", u"30"),
      (Texts{u"1", u"20", u"21", u"22", u"23", u"24", u"25", u"26", u"27", u"28", u"29", u"30"}));
}

TEST(ReverseList, EndsEachItemWithAComma) {
  const struct {
    TextView list, expected;
  } cases[] = {{u"a,b,c", u"c,b,a,"}, {u"a,,b", u"b,,a,"}, {u"a,b,", u"b,a,"}, {u"", u""},
               {u"one", u"one,"},     {u",,", u",,"},      {u",a;b", u"a;b,,"}};
  for (const auto& c : cases) EXPECT_EQ(kObject.ReverseList(c.list), c.expected) << Utf8(c.list);
}

TEST(TrimN, ReadsAField) {
  const struct {
    const char* reason;
    TextView list;
    std::int16_t number;
    TextView expected;
  } cases[] = {
      {"last of two characters", u"1,2,34", 3, u"34"},
      {"last of one character", u"10,20,3", 3, u""},
      {"one character in all", u"7", 1, u""},
      {"first of one character", u"7,8", 1, u"7"},
      {"blanks around", u" 7 ,8", 1, u"7"},
      {"field 0", u"10,20", 0, u""},
      {"field below 0", u"10,20", -1, u""},
      {"beyond the fields", u"10,20", 3, u""},
      {"empty", u"", 1, u""},
      {"half to even", u"2.5,00", 1, u"2"},
      {"sign and zeros", u"-007,0", 1, u"-7"},
      {"exponent", u"+.1E1,0", 1, u"1"},
      {"smallest", u"-2147483648.5,0", 1, u"-2147483648"},
      {"other fields are not read", u"x,,15", 3, u"15"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(kObject.TrimN(c.list, c.number), c.expected) << c.reason;
  }
  for (const TextView list : {u",15", u"ab,1", u"1 2,3", u"1E,2", u"1.2.3,0", u"-,00", u".,00",
                              u"5%,0", u"7\t,0", u"1E5x,0", u"1X5,0"}) {
    EXPECT_EQ(ErrorOf([&] { kObject.TrimN(list, 1); }), 13) << Utf8(list);
  }
  for (const TextView list : {u"2147483647.5,0", u"-2147483649,0", u"1E999,0"}) {
    EXPECT_EQ(ErrorOf([&] { kObject.TrimN(list, 1); }), 6) << Utf8(list);
  }
}

}  // namespace
}  // namespace ZQ7Standard
