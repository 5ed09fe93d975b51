#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

static const StandardObject kObject = ObjectWith(kMdy);

// The second unit is a mark above the first.
static constexpr TextView kThaiWord = u"กิขคงจฉชซฌ";

TEST(CostCodes, WritesPricesWithAndWithoutRepeats) {
  const auto call = [](double price) {
    return Utf8(kObject.FormatCostCode(price, u"BLACKHORSE") + u" " +
                kObject.FormatCostCode2(price, u"BLACKHORSE", u"X"));
  };
  // clang-format off
  ExpectRows<double>(call, {
      {125.5, "BLK.KE BLK.XE"}, {0, "E E"}, {-0.004, "E E", "no sign"}, {0.5, "E.KE E.KE"},
      {500, "KEE KEX"}, {5000, "KEEE KEXX", "every further digit"},
      {55.5, "KK.KE KX.XE", "the mark does not interrupt"}, {-1.005, "-B.EB -B.EB", "half away"},
      {2.5e-300, "E E"}, {1234567890, "BLACKHORSE BLACKHORSE"},
      {999999999999999, "SSSSSSSSSSSSSSS SXXXXXXXXXXXXXX"},
      {999999999999999.5, "error 6", "16 digits once it is rounded to 15"},
      {-1e15, "error 6"}, {kInfinity, "error 6"}, {kNan, "error 6"}});
  // clang-format on
  EXPECT_EQ(kObject.FormatCostCode(12.9, u"BlackHorse"), u"Bl.se");
  EXPECT_EQ(kObject.FormatCostCode2(22.1, kThaiWord, u"์"), u"ิ์.กฌ");
}

TEST(CostCodes, RefusesWordsAndRepeatCharacters) {
  // clang-format off
  ExpectTexts([](TextView word) { return kObject.FormatCostCode(1, word); }, {
      {"error 5", {u"", u"BLACKHORS", u"BLACKHORSES", u"BLACKHORSB", u"BLACKHORSb", u"BLACKHORS0",
      u"BLACKHORS9", u"BLACK.ORSE", u"BLACK-ORSE", u"BLACK ORSE", u"BLACKHOR😀",
      u"BLACKHORS\xDC00", u"กิขคงจฉชซิ"}},
      {"B", {u"BLACKHORSE"}}, {"b", {u"bLACKHORSE"}}, {"/", {u"/:,+*#@![]"}}});
  // clang-format on
  // clang-format off
  ExpectTexts([](TextView repeat) { return kObject.FormatCostCode2(1, u"BLACKHORSE", repeat); }, {
      {"error 5", {u"", u"XX", u"B", u"e", u"0", u".", u"-", u" ", u"\xD83D"}},
      {"B", {u"X", u"x", u"ก", u"้"}}});
  // clang-format on
  for (const TextView word : {u"BLACKHORS", u"BLACK"}) {
    EXPECT_EQ(ErrorOf([&] { kObject.DeFormatCostCode(u"", word); }), 5);
    EXPECT_EQ(ErrorOf([&] { kObject.DeFormatCostCode2(u"", word, u"X"); }), 5);
  }
  EXPECT_EQ(ErrorOf([] { kObject.DeFormatCostCode2(u"", u"BLACKHORSE", u"h"); }), 5);
}

TEST(CostCodes, ReadsCodes) {
  // clang-format off
  ExpectTexts([](TextView code) { return kObject.DeFormatCostCode2(code, u"BLACKHORSE", u"X"); }, {
      {"0", {u"", u"   ", u"E", u"-EXX.X"}}, {"500", {u"KEX", u"KEE", u" kex  ", u"EKEX.EX"}},
      {"-1.11", {u"-B.XX", u"-B.BX"}}, {"0.123456789", {u"E.BLACKHORS"}},
      {"1.1111111111111112", {u"B.XXXXXXXXXXXXXXXXXXXXXXXX"}}});
  // clang-format on
  EXPECT_EQ(kObject.DeFormatCostCode(u"KeE.kE", u"BLACKHORSE"), 500.5);
  EXPECT_EQ(kObject.DeFormatCostCode(u"X", u"XLACKHORSE"), 1);
  EXPECT_EQ(kObject.DeFormatCostCode(Text(309, u'B'), u"BLACKHORSE"), 1.1111111111111111e308);
  EXPECT_EQ(ErrorOf([] { kObject.DeFormatCostCode(Text(310, u'S'), u"BLACKHORSE"); }), 6);
}

TEST(CostCodes, TellsWhereACodeBreaksOff) {
  const auto call = [](TextView code) -> std::string {
    try {
      return Shown(kObject.DeFormatCostCode2(code, u"BLACKHORSE", u"X"));
    } catch (const RunTimeError& error) {
      return error.Details().text + " " + Utf8(*error.Details().input);
    }
  };
  // clang-format off
  ExpectRows<TextView>(call, {
      {u"-", "type mismatch: place 2 -", "one past the end"}, {u" B. ", "type mismatch: place 4  B. "},
      {u".B", "type mismatch: place 1 .B"}, {u"B.L.A", "type mismatch: place 4 B.L.A"}, {u"BL-", "type mismatch: place 3 BL-"},
      {u"--B", "type mismatch: place 2 --B"}, {u"B L", "type mismatch: place 2 B L"}, {u"- B", "type mismatch: place 2 - B"},
      {u"X", "type mismatch: place 1 X"}, {u"-X", "type mismatch: place 2 -X"}, {u"BL1", "type mismatch: place 3 BL1"},
      {u"B,L", "type mismatch: place 2 B,L"}, {u"\tB", "type mismatch: place 1 \tB"}, {u"BL😀", "type mismatch: place 3 BL😀"}});
  // clang-format on
  EXPECT_EQ(ErrorOf([] { kObject.DeFormatCostCode(u"KEX", u"BLACKHORSE"); }), 13);
}
