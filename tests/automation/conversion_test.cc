#include "automation/conversion.h"

#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "tests/support/row_tests.h"

namespace ZQ7Standard::Automation {
namespace {

constexpr std::array kTargets = {"text",   "byte",    "integer", "long",    "single",
                                 "double", "Boolean", "date",    "currency"};

// Each row is a value and its conversion to each of the targets; "6" and "13" are errors.
struct ConversionRow {
  Value value;
  std::array<const char*, kTargets.size()> expected;
};

std::vector<std::string> Converted(const Value& value) {
  ServiceSet services(ExampleServices());
  const CallContext call = {"Test", {}, services};
  const Place place = {call};
  const auto outcome = [](const auto& convert) {
    std::string shown = ResultOf(convert);
    return shown.starts_with("error ") ? shown.substr(6) : shown;
  };
  return {outcome([&] { return ToText(value, place); }),
          outcome([&] { return ToInteger<std::uint8_t>(value, place); }),
          outcome([&] { return ToInteger<std::int16_t>(value, place); }),
          outcome([&] { return ToInteger<std::int32_t>(value, place); }),
          outcome([&] { return ToSingle(value, place); }),
          outcome([&] { return ToDouble(value, place); }),
          outcome([&] { return ToBoolean(value, place); }),
          outcome([&] { return ToDate(value, place); }),
          outcome([&] { return ToCurrency(value, place); })};
}

TEST(Conversion, EveryTypeToEveryType) {
  const OleDate half_past_nine = OleDate::FromParts(2024, 1, 15, 9, 30);
  const std::vector<ConversionRow> rows = {
      // Texts that are numbers; halves go to even.
      {u"2.5", {"2.5", "2", "2", "2", "2.5", "2.5", "yes", "1900-01-01 12:00:00", "2.5000"}},
      {u" -1,234.5 ",
       {" -1,234.5 ", "6", "-1234", "-1234", "-1234.5", "-1234.5", "yes", "1896-08-13 12:00:00",
        "-1234.5000"}},
      {u"1E3", {"1E3", "6", "1000", "1000", "1000", "1000", "yes", "1902-09-26", "1000.0000"}},
      {u"922337203685477.5807",
       {"922337203685477.5807", "6", "6", "6", "9.223372e+14", "922337203685477.6", "yes", "6",
        "922337203685477.5807"}},
      {u"1E400", {"1E400", "6", "6", "6", "6", "6", "6", "6", "6"}},
      // Other texts.
      {u"", {"", "13", "13", "13", "13", "13", "13", "13", "13"}},
      {u"12 baht", {"12 baht", "13", "13", "13", "13", "13", "13", "13", "13"}},
      {u"TRUE", {"TRUE", "13", "13", "13", "13", "13", "yes", "13", "13"}},
      {u"false", {"false", "13", "13", "13", "13", "13", "no", "13", "13"}},
      {u"15/1/2567 9:30",
       {"15/1/2567 9:30", "13", "13", "13", "13", "13", "13", "2024-01-15 09:30:00", "13"}},
      // Numbers.
      {std::int16_t{-1}, {"-1", "6", "-1", "-1", "-1", "-1", "yes", "1899-12-29", "-1.0000"}},
      {300, {"300", "6", "300", "300", "300", "300", "yes", "1900-10-26", "300.0000"}},
      {2147483647,
       {"2147483647", "6", "6", "2147483647", "2147483648", "2147483647", "yes", "6",
        "2147483647.0000"}},
      {0.1F,
       {"0.1", "0", "0", "0", "0.1", "0.10000000149011612", "yes", "1899-12-30 02:24:00",
        "0.1000"}},
      {3.5, {"3.5", "4", "4", "4", "3.5", "3.5", "yes", "1900-01-02 12:00:00", "3.5000"}},
      {255.5,
       {"255.5", "6", "256", "256", "255.5", "255.5", "yes", "1900-09-11 12:00:00", "255.5000"}},
      {32767.5,
       {"32767.5", "6", "6", "32768", "32767.5", "32767.5", "yes", "1989-09-16 12:00:00",
        "32767.5000"}},
      {1E300, {"1E+300", "6", "6", "6", "6", "1e+300", "yes", "6", "6"}},
      {kNan, {"6", "6", "6", "6", "nan", "nan", "yes", "6", "6"}},
      {-kInfinity, {"6", "6", "6", "6", "-inf", "-inf", "yes", "6", "6"}},
      {0.00005, {"5E-05", "0", "0", "0", "5e-05", "5e-05", "yes", "1899-12-30 00:00:04", "0.0000"}},
      // Booleans, dates and amounts.
      {true, {"True", "255", "-1", "-1", "-1", "-1", "yes", "1899-12-29", "-1.0000"}},
      {false, {"False", "0", "0", "0", "0", "0", "no", "1899-12-30", "0.0000"}},
      {half_past_nine,
       {"15/1/2567 9:30:00", "6", "6", "45306", "45306.395", "45306.395833333336", "yes",
        "2024-01-15 09:30:00", "45306.3958"}},
      {OleDate(0.25),
       {"6:00:00", "0", "0", "0", "0.25", "0.25", "yes", "1899-12-30 06:00:00", "0.2500"}},
      {Currency(10.3),
       {"10.3", "10", "10", "10", "10.3", "10.3", "yes", "1900-01-09 07:12:00", "10.3000"}},
      {Currency(-200),
       {"-200", "6", "-200", "-200", "-200", "-200", "yes", "1899-06-13", "-200.0000"}},
      // Other values.
      {TextList{u"1"}, {"13", "13", "13", "13", "13", "13", "13", "13", "13"}},
      {Create("BitByteObject"), {"13", "13", "13", "13", "13", "13", "13", "13", "13"}}};
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const auto converted = Converted(rows[row].value);
    for (std::size_t i = 0; i < kTargets.size(); ++i) {
      EXPECT_EQ(converted[i], rows[row].expected[i])
          << "row " << row << " (" << rows[row].expected[0] << ") as " << kTargets[i];
    }
  }
}

// A date as text reads back as the same date under every convention.
TEST(Conversion, DatesRoundTripThroughText) {
  for (const DateConvention convention : kConventions) {
    ServiceSet services(
        {.clock = FixedClock(TestNow()), .date_convention = FixedDateConvention(convention)});
    const CallContext call = {"Test", {}, services};
    for (const OleDate date : {OleDate::FromParts(2024, 2, 29), OleDate::FromParts(1999, 12, 31),
                               OleDate::FromParts(643, 1, 2, 23, 59, 58)}) {
      EXPECT_EQ(ToDate(ToText(date, {call}), {call}), date) << Shown(convention);
    }
  }
}

TEST(Conversion, ListsStayLists) {
  ServiceSet services(ExampleServices());
  const CallContext call = {"Test", {}, services};
  EXPECT_EQ(ToTextList(TextList{u"a", u""}, {call}), (TextList{u"a", u""}));
  EXPECT_EQ(ErrorOf([&] { ToTextList(u"a", {call}); }), 13);
}

}  // namespace
}  // namespace ZQ7Standard::Automation
