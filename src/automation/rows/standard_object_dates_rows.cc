#include <ZQ7Standard/StandardObject.h>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {
namespace {

void AddEra(ClassRow& info) {
  AddSubject(
      info, "The system's era and date layout, sentinel dates",
      {Operation<&StandardObject::GetEraDif>(
           1, "GetEraDif", "The system's year less the Gregorian year: 543 or 0.", {{{}, 543}}),
       Operation<&StandardObject::CTYEAR>(2, "CTYEAR", "The current year in the system's era.",
                                          {{{}, 2567}}),
       Operation<&StandardObject::Year2000>(3, "Year2000", {"InDate"},
                                            "The year of a date in the system's era.",
                                            {{{Date(2024, 1, 15)}, 2567}}),
       Operation<&StandardObject::GetDateFormat>(
           4, "GetDateFormat", "The code of the system's date layout, 1 to 4.", {{{}, 4}}),
       Operation<&StandardObject::GetDateFormatString>(
           5, "GetDateFormatString", {ByRef("DateFormat")},
           R"(The date layout of a code, "m/d/yyyy" or "d/m/yyyy".)", {{{4}, u"d/m/yyyy"}}),
       Operation<&StandardObject::GETBlankDate>(6, "GETBlankDate",
                                                "The date that stands for no date, 3333-03-03.",
                                                {{{}, Date(3333, 3, 3)}}),
       Operation<&StandardObject::GETMAXDate>(7, "GETMAXDate", "The largest date, 3333-03-03.",
                                              {{{}, Date(3333, 3, 3)}}),
       Operation<&StandardObject::isBlankDate>(
           8, "isBlankDate", {"iDate"}, "Whether a date stands for no date.",
           {{{Date(3333, 3, 3)}, true}, {{Date(2024, 1, 15)}, false}}),
       Operation<&StandardObject::TrimDate>(9, "TrimDate", {"iDate"}, "The same day at 00:00.",
                                            {{{Date(2024, 1, 15, 9, 30)}, Date(2024, 1, 15)}})});
}

void AddDayTime(ClassRow& info) {
  AddSubject(info, "Spans of days, hours and minutes",
             {Operation<&StandardObject::DAYTIME2DAY>(10, "DAYTIME2DAY", {"iDDHHMMText"},
                                                      R"(Reads "D:H:M" as a number of days.)",
                                                      {{{u"1:12:00"}, 1.5}}),
              Operation<&StandardObject::DAY2DAYTIME>(11, "DAY2DAYTIME", {"iDay"},
                                                      R"(Writes a number of days as "D:HH:MM".)",
                                                      {{{1.5}, u"1:12:00"}}),
              Operation<&StandardObject::FormatHour>(
                  12, "FormatHour", {"iHour"}, R"(Writes a number of hours as "H:MM".)",
                  {{{7.5}, u"7:30"}, {{2.675}, u"2:41"}, {{-1.5}, u"-1:30"}, {{1e15}, Raises(6)}}),
              Operation<&StandardObject::isDayTime>(
                  13, "isDayTime", {"IDayTimeText", Optional("AcceptZeroValue", false)},
                  R"(Whether a "D:H:M" text amounts to anything but zero.)",
                  {{{u"0:8:30"}, true}, {{u"0:0:0"}, false}, {{u"0:0:0", true}, true}})});
}

void AddParsing(ClassRow& info) {
  const auto flag = ByRef(Optional("NoUsedBackwardSupportOnly", false));
  AddSubject(
      info, "Dates typed by users",
      {Operation<&StandardObject::CTDATE>(14, "CTDATE", {"iText", flag},
                                          "Reads a date as a user types it in a date box.",
                                          {{{u"15/1/2567"}, Date(2024, 1, 15)},
                                           {{u"29/2/67"}, Date(2024, 2, 29)},
                                           {{u"1/15/2567"}, Raises(13)}}),
       Operation<&StandardObject::IsTDate>(15, "IsTDate", {"iText", flag},
                                           "Whether a text is a date with a year of four digits.",
                                           {{{u"15/1/2567"}, true}, {{u"15/1/67"}, false}}),
       Operation<&StandardObject::CDATE2000>(
           16, "CDATE2000", {"iText"}, "Reads any date and adds the era difference to its year.",
           {{{u"15/1/2567"}, Date(2567, 1, 15)}, {{u"soon"}, Date(3333, 3, 3)}}),
       Operation<&StandardObject::GETValidDate>(
           17, "GETValidDate", {"DateString"}, "Reads a date; today for a text that is none.",
           {{{u"15/3/2556"}, Date(2013, 3, 15)}, {{u"soon"}, Date(2024, 1, 15)}}),
       Operation<&StandardObject::IsTDateTime>(18, "IsTDateTime", {"iText"},
                                               "Whether a text is a date, a time or both.",
                                               {{{u"15 ม.ค. 2567 9:30"}, true}, {{u"9"}, false}}),
       Operation<&StandardObject::isMounthYear>(
           19, "isMounthYear", {"inMMYYYY"}, R"(Whether a text is a month and a year, "MM/YYYY".)",
           {{{u"01/2567"}, true}, {{u"13/2567"}, false}}),
       Operation<&StandardObject::GETDateFromTextYYYYMMDD>(
           20, "GETDateFromTextYYYYMMDD", {"iDateYYYY_MM_DD"},
           "Reads a date of a sortable key, the year first.",
           {{{u"2567-01-15"}, Date(2024, 1, 15)}, {{u"never"}, Date(543, 3, 3)}}),
       Operation<&StandardObject::CTPeriod>(
           21, "CTPeriod", {"iText"}, "The first day of a month typed year first.",
           {{{u"2567/03"}, Date(2024, 3, 1)}, {{u"2567/13"}, Date(2024, 1, 1)}}),
       Operation<&StandardObject::IsTPeriod>(22, "IsTPeriod", {"iText"},
                                             "Whether `CTPeriod` reads a text as it stands.",
                                             {{{u"2567/03"}, true}, {{u"2567/13"}, false}})});
}

void AddTimeParsing(ClassRow& info) {
  AddSubject(
      info, "Times typed by users",
      {Operation<&StandardObject::CTTime>(23, "CTTime", {"ITimeText"},
                                          R"(The time of day of four digits "HHMM".)",
                                          {{{u"0600"}, 0.25}, {{u"6:00"}, 0}}),
       Operation<&StandardObject::isTTime>(24, "isTTime", {"ITimeText"},
                                           R"(Whether a text is four digits "HHMM".)",
                                           {{{u"2359"}, true}, {{u"2400"}, false}}),
       Operation<&StandardObject::Str2AddDay>(
           25, "Str2AddDay", {"InTime", ByRef(Optional("StartValue", 0))},
           "The day that a clock time past midnight carries over to.",
           {{{u"25:30"}, 1}, {{u"09:30"}, 0}}),
       Operation<&StandardObject::Str2TIME>(
           26, "Str2TIME", {"InTime"}, R"(Reads a clock time such as "9:30" or "9:30 PM".)",
           {{{u"6:00"}, 0.25}, {{u"6:00 PM"}, 0.75}, {{u"soon"}, 0}}),
       Operation<&StandardObject::CTHour>(27, "CTHour", {"ITimeText"}, R"(Reads "H:M" as hours.)",
                                          {{{u"7:30"}, 7.5}, {{u"-1:30"}, -1.5}}),
       Operation<&StandardObject::isHour>(28, "isHour",
                                          {"IHourText", Optional("AcceptZeroValue", false)},
                                          R"(Whether an "H:M" text amounts to anything but zero.)",
                                          {{{u"7:30"}, true}, {{u"0:00"}, false}})});
}

void AddNames(ClassRow& info) {
  AddSubject(
      info, "Month and day names",
      {Operation<&StandardObject::GETMonthTextArray>(
           29, "GETMonthTextArray", {"FullText", "UseThai"},
           "The 12 month names; element 0 is empty.",
           {{{false, false},
             TextList{u"", u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun", u"Jul", u"Aug", u"Sep",
                      u"Oct", u"Nov", u"Dec"}}}),
       Operation<&StandardObject::GETDayTextArray>(
           30, "GETDayTextArray", {"FullText", "UseThai"},
           "The 7 day names from Sunday; element 0 is empty.",
           {{{true, true},
             TextList{u"", u"อาทิตย์", u"จันทร์", u"อังคาร", u"พุธ", u"พฤหัส", u"ศุกร์", u"เสาร์"}}}),
       Operation<&StandardObject::MonthText>(
           31, "MonthText", {"MonthNumber", "FullText", ByRef("UseThai")}, "The name of a month.",
           {{{1, true, true}, u"มกราคม"}, {{2, true, false}, u"Febuary"}}),
       Operation<&StandardObject::DayText>(32, "DayText", {"iDate", "FullText", ByRef("UseThai")},
                                           "The name of a date's weekday.",
                                           {{{Date(2024, 1, 15), true, true}, u"จันทร์"}}),
       Operation<&StandardObject::MonthYearTextFull>(33, "MonthYearTextFull", {ByRef("InDate")},
                                                     "The month and year of a date in English.",
                                                     {{{Date(2024, 1, 15)}, u"January 2024"}})});
}

void AddFormatting(ClassRow& info) {
  const auto zero_leader = Optional("ZeroLeader", false);
  AddSubject(
      info, "Dates and times as text",
      {Operation<&StandardObject::FormatTDate>(34, "FormatTDate", {"InDate", zero_leader},
                                               "Writes a date in the system's own layout.",
                                               {{{Date(2024, 1, 5)}, u"5/1/2567"},
                                                {{Date(2024, 1, 5), true}, u"05/01/2567"},
                                                {{Date(3333, 3, 3)}, u""}}),
       Operation<&StandardObject::FormatTDate2>(
           35, "FormatTDate2", {"InDate", "DateType", zero_leader},
           "Writes a date in one of fifteen layouts, or in the system's own of them.",
           {{{Date(2024, 1, 15), ZQ7DMMBBBB}, u"15 ม.ค. 2567"},
            {{Date(2024, 1, 5), ZQ7Detect, true}, u"05/01/2567"},
            {{Date(2024, 1, 15), ZQ7D_D_M_M_B_B_B_B}, u"1 5 0 1 2 5 6 7"}}),
       Operation<&StandardObject::FormatTDateTime>(
           36, "FormatTDateTime", {"InDate", zero_leader},
           "Writes a date in the system's own layout and the time of day.",
           {{{Date(2024, 1, 15, 9, 30)}, u"15/1/2567 09:30"}}),
       Operation<&StandardObject::Format2000>(
           37, "Format2000", {"InDate", Optional("FormatText", u"d/m/yyyy")},
           "Writes a date by a pattern, in the system's era and language.",
           {{{Date(2024, 1, 15)}, u"15/1/2567"},
            {{Date(2024, 1, 15, 13, 5), u"ddd d mmm yy h:mm AM/PM"}, u"จ. 15 ม.ค. 67 1:05 PM"},
            {{Date(2024, 1, 15), u"\"due"}, Raises(5)}}),
       Operation<&StandardObject::FormatThai>(
           38, "FormatThai", {"InDate", Optional("FormatText", u"d mmmm bbbb")},
           "Writes a date by a pattern, with Thai names and Buddhist years.",
           {{{Date(2024, 1, 15)}, u"15 มกราคม 2567"},
            {{Date(2024, 1, 15), u"dddd\"ที่\" d mmmm yyyy"}, u"จันทร์ที่ 15 มกราคม 2567"}}),
       Operation<&StandardObject::FormatThaiRevere>(39, "FormatThaiRevere", {"InDate"},
                                                    "Writes the Thai date reversed, for sorting.",
                                                    {{{Date(2024, 1, 15)}, u"2567/01/15"}}),
       Operation<&StandardObject::FormatEnglish>(
           40, "FormatEnglish", {"InDate", Optional("FormatText", u"d mmmm yyyy")},
           "Writes a date by a pattern, with English names and Gregorian years.",
           {{{Date(2024, 1, 15)}, u"15 January 2024"},
            {{Date(2567, 1, 15), u"ddd, mmm d, bbbb"}, u"Mon, Jan 15, 2024"}}),
       Operation<&StandardObject::FormatQuery>(
           41, "FormatQuery", {"InDate"},
           "Writes a date for a database query; NULL for a blank date.",
           {{{Date(2024, 1, 15)}, u"2024-01-15"}, {{Date(3333, 3, 3)}, u"NULL"}}),
       Operation<&StandardObject::FormatQueryTime>(
           42, "FormatQueryTime", {"InDate"},
           "Writes a date and its time for a database query; NULL for a blank date.",
           {{{Date(2024, 1, 15, 9, 30)}, u"2024-01-15 09:30:00"}}),
       Operation<&StandardObject::FormatTime>(43, "FormatTime", {"InDate"},
                                              R"(Writes the time of day as "HH:MM".)",
                                              {{{Date(2024, 1, 15, 9, 30)}, u"09:30"}}),
       Operation<&StandardObject::FormatTime2>(
           44, "FormatTime2", {"InDate", Optional("FormatText", u"hh:nn:ss")},
           "Writes the time of day by a pattern.",
           {{{Date(2024, 1, 15, 9, 30)}, u"09:30:00"},
            {{Date(2024, 1, 15, 21, 30), u"h:mm am/pm"}, u"9:30 pm"}}),
       Operation<&StandardObject::FormatPeriod>(45, "FormatPeriod", {"InDate"},
                                                "Writes the month of a date, the year first.",
                                                {{{Date(2024, 1, 15)}, u"2567/01"}}),
       Operation<&StandardObject::FormatTPeriod>(46, "FormatTPeriod", {"InDate"},
                                                 "Writes the month of a date, the month first.",
                                                 {{{Date(2024, 1, 15)}, u"01/2567"}})});
}

void AddMonths(ClassRow& info) {
  AddSubject(
      info, "Month arithmetic",
      {Operation<&StandardObject::AddMonth>(
           47, "AddMonth", {ByRef("InDate"), ByRef(Optional("NumberOfMonth", 0))},
           "Moves a date by single months, cut back to the last day of each.",
           {{{Date(2024, 1, 31), 1}, Date(2024, 2, 29)},
            {{Date(2024, 1, 31), 2}, Date(2024, 3, 29)},
            {{Date(2024, 1, 15)}, Date(2024, 2, 15)}}),
       Operation<&StandardObject::AddYear>(48, "AddYear",
                                           {ByRef("InDate"), ByRef(Optional("NumberOfYear", 0))},
                                           "Moves a date by years of twelve single months.",
                                           {{{Date(2024, 2, 29), 1}, Date(2025, 2, 28)}}),
       Operation<&StandardObject::GETFirstDayOfMonthYear>(
           49, "GETFirstDayOfMonthYear", {"iMonth", "iYear2000"},
           "The first day of a month of a Gregorian year.",
           {{{2, 2024}, Date(2024, 2, 1)}, {{0, 2024}, Raises(13)}}),
       Operation<&StandardObject::GETLastDayOfMonthYear>(
           50, "GETLastDayOfMonthYear", {"iMonth", "iYear2000"},
           "The last day of a month of a Gregorian year.", {{{2, 2024}, Date(2024, 2, 29)}})});
}

void AddCalendar(ClassRow& info) {
  AddSubject(
      info, "Weekdays and weeks",
      {Operation<&StandardObject::GETFirstMondayOfMonthYear>(
           51, "GETFirstMondayOfMonthYear", {"iMonth", "iYear2000"},
           "The first Monday of a month of a Gregorian year.",
           {{{2, 2024}, Date(2024, 2, 5)}, {{0, 2024}, Raises(13)}}),
       Operation<&StandardObject::GETFirstSaturdayOfMonthYear>(
           52, "GETFirstSaturdayOfMonthYear", {"iMonth", "iYear2000"},
           "The first Saturday of a month of a Gregorian year.",
           {{{2, 2024}, Date(2024, 2, 3)}, {{6, 2024}, Date(2024, 6, 1)}}),
       Operation<&StandardObject::GETWeekOfMonth>(
           53, "GETWeekOfMonth", {"InDate"}, "The week of the month that a date is in, 1 to 6.",
           {{{Date(2024, 1, 6)}, 1}, {{Date(2024, 1, 7)}, 2}, {{Date(3333, 3, 3)}, 0}}),
       Operation<&StandardObject::GETPeriodOfMonth>(
           54, "GETPeriodOfMonth", {"InDate"},
           "The pay period of the month that a date is in, 1 or 2.",
           {{{Date(2024, 1, 15)}, 1}, {{Date(2024, 1, 16)}, 2}}),
       Operation<&StandardObject::ISWeekHoliday>(
           55, "ISWeekHoliday", {"InDate"}, "Whether a date is a Saturday or a Sunday.",
           {{{Date(2024, 1, 14)}, true}, {{Date(2024, 1, 15)}, false}})});
}

void AddTimeLeft(ClassRow& info) {
  const auto language = Optional("UseThai");
  AddSubject(info, "Time left of long work",
             {Operation<&StandardObject::TimeLeftDateTime>(
                  56, "TimeLeftDateTime", {"StartDate", "DoneCount", "TotalCount"},
                  "Estimates the days that work still takes from what is done by now.",
                  {{{Date(2024, 1, 15, 3, 30), 1, 4}, 0.75}, {{Date(2024, 1, 15), 4, 4}, 0}}),
              Operation<&StandardObject::FormatTimeleft>(
                  57, "FormatTimeleft", {"TimeLeft", language},
                  "Writes a span of days as its two largest units.",
                  {{{1.25, false}, u"1 day 6 hours"}, {{1.25}, u"1 วัน 6 ชั่วโมง"}}),
              Operation<&StandardObject::TimeLeftText>(
                  58, "TimeLeftText", {"StartDate", "DoneCount", "TotalCount", language},
                  "The text of the time that work still takes.",
                  {{{Date(2024, 1, 15, 9, 0), 3, 10, false}, u"1 hour 10 minutes"},
                   {{Date(2024, 1, 15, 9, 0), 0, 10}, u""}})});
}

void AddPaymentTerms(ClassRow& info) {
  AddSubject(
      info, "Payment terms",
      {Operation<&StandardObject::GetConditionDueDate>(
           59, "GetConditionDueDate",
           {"InvoiceDate", "ConditionType", "NetDay", ByRef("DeliveryDay")},
           "The due date of an invoice.",
           {{{Date(2024, 1, 15), ZQ7AfterInvoiceDate, 30, 0}, Date(2024, 2, 14)},
            {{Date(2024, 1, 15), ZQ7AfterDeliveryDate, 30, 7}, Date(2024, 2, 21)}}),
       Operation<&StandardObject::FormatCondition2>(
           60, "FormatCondition2",
           {"Condition1", "ConditionDay1", "ConditionType", "OutputType", "ConditionDay"},
           "Writes a payment term in trade notation.",
           {{{2, 10, ZQ7AfterInvoiceDate, ZQ7ConditionOutputTypeShort, 30}, u"2.0/10, N/30 AID"},
            {{0, 0, ZQ7AfterInvoiceDate, ZQ7ConditionOutputTypeFull, 30},
             u"N/30 AFTER INVOICE DATE"}}),
       Operation<&StandardObject::FormatCondition>(
           61, "FormatCondition",
           {"Condition1", "ConditionDay1", "ConditionType", "OutputType", "ConditionDay"},
           "`FormatCondition2` with the event and the output as numbers.",
           {{{0, 0, 0, 0, 30}, u"N/30 AID"}, {{0, 0, 0, 0, 0}, u"CASH"}})});
}

}  // namespace

void AddDateOperations(ClassRow& owner) {
  for (const auto add : {AddEra, AddDayTime, AddParsing, AddTimeParsing, AddNames, AddFormatting,
                         AddMonths, AddCalendar, AddTimeLeft, AddPaymentTerms}) {
    add(owner);
  }
}

}  // namespace ZQ7Standard::Automation
