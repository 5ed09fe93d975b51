#include <ZQ7Standard/StandardObject.h>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {
namespace {

using enum Effect;

void AddEra(ClassRow& info) {
  AddOperations(
      info,
      {Operation<&StandardObject::GetEraDif>(1, "GetEraDif", kConvention, {{{}, 543}}),
       Operation<&StandardObject::CTYEAR>(2, "CTYEAR", kClock, {{{}, 2567}}),
       Operation<&StandardObject::Year2000>(3, "Year2000", kConvention, {"InDate"},
                                            {{{Date(2024, 1, 15)}, 2567}}),
       Operation<&StandardObject::GetDateFormat>(4, "GetDateFormat", kConvention, {{{}, 4}}),
       Operation<&StandardObject::GetDateFormatString>(5, "GetDateFormatString", kNone,
                                                       {ByRef("DateFormat")}, {{{4}, u"d/m/yyyy"}}),
       Operation<&StandardObject::GETBlankDate>(6, "GETBlankDate", kNone, {{{}, Date(3333, 3, 3)}}),
       Operation<&StandardObject::GETMAXDate>(7, "GETMAXDate", kNone, {{{}, Date(3333, 3, 3)}}),
       Operation<&StandardObject::isBlankDate>(
           8, "isBlankDate", kNone, {"iDate"},
           {{{Date(3333, 3, 3)}, true}, {{Date(2024, 1, 15)}, false}}),
       Operation<&StandardObject::TrimDate>(9, "TrimDate", kNone, {"iDate"},
                                            {{{Date(2024, 1, 15, 9, 30)}, Date(2024, 1, 15)}})});
}

void AddDayTime(ClassRow& info) {
  AddOperations(
      info, {Operation<&StandardObject::DAYTIME2DAY>(10, "DAYTIME2DAY", kNone, {"iDDHHMMText"},
                                                     {{{u"1:12:00"}, 1.5}}),
             Operation<&StandardObject::DAY2DAYTIME>(11, "DAY2DAYTIME", kNone, {"iDay"},
                                                     {{{1.5}, u"1:12:00"}}),
             Operation<&StandardObject::FormatHour>(
                 12, "FormatHour", kNone, {"iHour"},
                 {{{7.5}, u"7:30"}, {{2.675}, u"2:41"}, {{-1.5}, u"-1:30"}, {{1e15}, Raises(6)}}),
             Operation<&StandardObject::isDayTime>(
                 13, "isDayTime", kNone, {"IDayTimeText", Optional("AcceptZeroValue", false)},
                 {{{u"0:8:30"}, true}, {{u"0:0:0"}, false}, {{u"0:0:0", true}, true}})});
}

void AddParsing(ClassRow& info) {
  const auto flag = ByRef(Optional("NoUsedBackwardSupportOnly", false));
  AddOperations(
      info,
      {Operation<&StandardObject::CTDATE>(14, "CTDATE", kConvention, {"iText", flag},
                                          {{{u"15/1/2567"}, Date(2024, 1, 15)},
                                           {{u"29/2/67"}, Date(2024, 2, 29)},
                                           {{u"1/15/2567"}, Raises(13)}}),
       Operation<&StandardObject::IsTDate>(15, "IsTDate", kConvention, {"iText", flag},
                                           {{{u"15/1/2567"}, true}, {{u"15/1/67"}, false}}),
       Operation<&StandardObject::CDATE2000>(
           16, "CDATE2000", kClock, {"iText"},
           {{{u"15/1/2567"}, Date(2567, 1, 15)}, {{u"soon"}, Date(3333, 3, 3)}}),
       Operation<&StandardObject::GETValidDate>(
           17, "GETValidDate", kClock, {"DateString"},
           {{{u"15/3/2556"}, Date(2013, 3, 15)}, {{u"soon"}, Date(2024, 1, 15)}}),
       Operation<&StandardObject::IsTDateTime>(18, "IsTDateTime", kClock, {"iText"},
                                               {{{u"15 ม.ค. 2567 9:30"}, true}, {{u"9"}, false}}),
       Operation<&StandardObject::isMounthYear>(19, "isMounthYear", kNone, {"inMMYYYY"},
                                                {{{u"01/2567"}, true}, {{u"13/2567"}, false}}),
       Operation<&StandardObject::GETDateFromTextYYYYMMDD>(
           20, "GETDateFromTextYYYYMMDD", kClock, {"iDateYYYY_MM_DD"},
           {{{u"2567-01-15"}, Date(2024, 1, 15)}, {{u"never"}, Date(543, 3, 3)}}),
       Operation<&StandardObject::CTPeriod>(
           21, "CTPeriod", kClock, {"iText"},
           {{{u"2567/03"}, Date(2024, 3, 1)}, {{u"2567/13"}, Date(2024, 1, 1)}}),
       Operation<&StandardObject::IsTPeriod>(22, "IsTPeriod", kConvention, {"iText"},
                                             {{{u"2567/03"}, true}, {{u"2567/13"}, false}})});
}

void AddTimeParsing(ClassRow& info) {
  AddOperations(info, {Operation<&StandardObject::CTTime>(23, "CTTime", kNone, {"ITimeText"},
                                                          {{{u"0600"}, 0.25}, {{u"6:00"}, 0}}),
                       Operation<&StandardObject::isTTime>(24, "isTTime", kNone, {"ITimeText"},
                                                           {{{u"2359"}, true}, {{u"2400"}, false}}),
                       Operation<&StandardObject::Str2AddDay>(
                           25, "Str2AddDay", kNone, {"InTime", ByRef(Optional("StartValue", 0))},
                           {{{u"25:30"}, 1}, {{u"09:30"}, 0}}),
                       Operation<&StandardObject::Str2TIME>(
                           26, "Str2TIME", kNone, {"InTime"},
                           {{{u"6:00"}, 0.25}, {{u"6:00 PM"}, 0.75}, {{u"soon"}, 0}}),
                       Operation<&StandardObject::CTHour>(27, "CTHour", kNone, {"ITimeText"},
                                                          {{{u"7:30"}, 7.5}, {{u"-1:30"}, -1.5}}),
                       Operation<&StandardObject::isHour>(
                           28, "isHour", kNone, {"IHourText", Optional("AcceptZeroValue", false)},
                           {{{u"7:30"}, true}, {{u"0:00"}, false}})});
}

void AddNames(ClassRow& info) {
  AddOperations(
      info, {Operation<&StandardObject::GETMonthTextArray>(
                 29, "GETMonthTextArray", kNone, {"FullText", "UseThai"},
                 {{{false, false},
                   TextList{u"", u"Jan", u"Feb", u"Mar", u"Apr", u"May", u"Jun", u"Jul", u"Aug",
                            u"Sep", u"Oct", u"Nov", u"Dec"}}}),
             Operation<&StandardObject::GETDayTextArray>(
                 30, "GETDayTextArray", kNone, {"FullText", "UseThai"},
                 {{{true, true},
                   TextList{u"", u"อาทิตย์", u"จันทร์", u"อังคาร", u"พุธ", u"พฤหัส", u"ศุกร์", u"เสาร์"}}}),
             Operation<&StandardObject::MonthText>(
                 31, "MonthText", kNone, {"MonthNumber", "FullText", ByRef("UseThai")},
                 {{{1, true, true}, u"มกราคม"}, {{2, true, false}, u"Febuary"}}),
             Operation<&StandardObject::DayText>(32, "DayText", kNone,
                                                 {"iDate", "FullText", ByRef("UseThai")},
                                                 {{{Date(2024, 1, 15), true, true}, u"จันทร์"}}),
             Operation<&StandardObject::MonthYearTextFull>(
                 33, "MonthYearTextFull", kNone, {ByRef("InDate")},
                 {{{Date(2024, 1, 15)}, u"January 2024"}})});
}

void AddFormatting(ClassRow& info) {
  const auto zero_leader = Optional("ZeroLeader", false);
  AddOperations(
      info,
      {Operation<&StandardObject::FormatTDate>(34, "FormatTDate", kConvention,
                                               {"InDate", zero_leader},
                                               {{{Date(2024, 1, 5)}, u"5/1/2567"},
                                                {{Date(2024, 1, 5), true}, u"05/01/2567"},
                                                {{Date(3333, 3, 3)}, u""}}),
       Operation<&StandardObject::FormatTDate2>(
           35, "FormatTDate2", kConvention, {"InDate", "DateType", zero_leader},
           {{{Date(2024, 1, 15), ZQ7DMMBBBB}, u"15 ม.ค. 2567"},
            {{Date(2024, 1, 5), ZQ7Detect, true}, u"05/01/2567"},
            {{Date(2024, 1, 15), ZQ7D_D_M_M_B_B_B_B}, u"1 5 0 1 2 5 6 7"}}),
       Operation<&StandardObject::FormatTDateTime>(
           36, "FormatTDateTime", kConvention, {"InDate", zero_leader},
           {{{Date(2024, 1, 15, 9, 30)}, u"15/1/2567 09:30"}}),
       Operation<&StandardObject::Format2000>(
           37, "Format2000", kConvention, {"InDate", Optional("FormatText", u"d/m/yyyy")},
           {{{Date(2024, 1, 15)}, u"15/1/2567"},
            {{Date(2024, 1, 15, 13, 5), u"ddd d mmm yy h:mm AM/PM"}, u"จ. 15 ม.ค. 67 1:05 PM"},
            {{Date(2024, 1, 15), u"\"due"}, Raises(5)}}),
       Operation<&StandardObject::FormatThai>(
           38, "FormatThai", kNone, {"InDate", Optional("FormatText", u"d mmmm bbbb")},
           {{{Date(2024, 1, 15)}, u"15 มกราคม 2567"},
            {{Date(2024, 1, 15), u"dddd\"ที่\" d mmmm yyyy"}, u"จันทร์ที่ 15 มกราคม 2567"}}),
       Operation<&StandardObject::FormatThaiRevere>(39, "FormatThaiRevere", kNone, {"InDate"},
                                                    {{{Date(2024, 1, 15)}, u"2567/01/15"}}),
       Operation<&StandardObject::FormatEnglish>(
           40, "FormatEnglish", kNone, {"InDate", Optional("FormatText", u"d mmmm yyyy")},
           {{{Date(2024, 1, 15)}, u"15 January 2024"},
            {{Date(2567, 1, 15), u"ddd, mmm d, bbbb"}, u"Mon, Jan 15, 2024"}}),
       Operation<&StandardObject::FormatQuery>(
           41, "FormatQuery", kNone, {"InDate"},
           {{{Date(2024, 1, 15)}, u"2024-01-15"}, {{Date(3333, 3, 3)}, u"NULL"}}),
       Operation<&StandardObject::FormatQueryTime>(
           42, "FormatQueryTime", kNone, {"InDate"},
           {{{Date(2024, 1, 15, 9, 30)}, u"2024-01-15 09:30:00"}}),
       Operation<&StandardObject::FormatTime>(43, "FormatTime", kNone, {"InDate"},
                                              {{{Date(2024, 1, 15, 9, 30)}, u"09:30"}}),
       Operation<&StandardObject::FormatTime2>(
           44, "FormatTime2", kConvention, {"InDate", Optional("FormatText", u"hh:nn:ss")},
           {{{Date(2024, 1, 15, 9, 30)}, u"09:30:00"},
            {{Date(2024, 1, 15, 21, 30), u"h:mm am/pm"}, u"9:30 pm"}}),
       Operation<&StandardObject::FormatPeriod>(45, "FormatPeriod", kConvention, {"InDate"},
                                                {{{Date(2024, 1, 15)}, u"2567/01"}}),
       Operation<&StandardObject::FormatTPeriod>(46, "FormatTPeriod", kConvention, {"InDate"},
                                                 {{{Date(2024, 1, 15)}, u"01/2567"}})});
}

void AddMonths(ClassRow& info) {
  AddOperations(
      info,
      {Operation<&StandardObject::AddMonth>(47, "AddMonth", kConvention,
                                            {ByRef("InDate"), ByRef(Optional("NumberOfMonth", 0))},
                                            {{{Date(2024, 1, 31), 1}, Date(2024, 2, 29)},
                                             {{Date(2024, 1, 31), 2}, Date(2024, 3, 29)},
                                             {{Date(2024, 1, 15)}, Date(2024, 2, 15)}}),
       Operation<&StandardObject::AddYear>(48, "AddYear", kConvention,
                                           {ByRef("InDate"), ByRef(Optional("NumberOfYear", 0))},
                                           {{{Date(2024, 2, 29), 1}, Date(2025, 2, 28)}}),
       Operation<&StandardObject::GETFirstDayOfMonthYear>(
           49, "GETFirstDayOfMonthYear", kConvention, {"iMonth", "iYear2000"},
           {{{2, 2024}, Date(2024, 2, 1)}, {{0, 2024}, Raises(13)}}),
       Operation<&StandardObject::GETLastDayOfMonthYear>(50, "GETLastDayOfMonthYear", kNone,
                                                         {"iMonth", "iYear2000"},
                                                         {{{2, 2024}, Date(2024, 2, 29)}})});
}

void AddCalendar(ClassRow& info) {
  AddOperations(info,
                {Operation<&StandardObject::GETFirstMondayOfMonthYear>(
                     51, "GETFirstMondayOfMonthYear", kConvention, {"iMonth", "iYear2000"},
                     {{{2, 2024}, Date(2024, 2, 5)}, {{0, 2024}, Raises(13)}}),
                 Operation<&StandardObject::GETFirstSaturdayOfMonthYear>(
                     52, "GETFirstSaturdayOfMonthYear", kConvention, {"iMonth", "iYear2000"},
                     {{{2, 2024}, Date(2024, 2, 3)}, {{6, 2024}, Date(2024, 6, 1)}}),
                 Operation<&StandardObject::GETWeekOfMonth>(
                     53, "GETWeekOfMonth", kNone, {"InDate"},
                     {{{Date(2024, 1, 6)}, 1}, {{Date(2024, 1, 7)}, 2}, {{Date(3333, 3, 3)}, 0}}),
                 Operation<&StandardObject::GETPeriodOfMonth>(
                     54, "GETPeriodOfMonth", kNone, {"InDate"},
                     {{{Date(2024, 1, 15)}, 1}, {{Date(2024, 1, 16)}, 2}}),
                 Operation<&StandardObject::ISWeekHoliday>(
                     55, "ISWeekHoliday", kNone, {"InDate"},
                     {{{Date(2024, 1, 14)}, true}, {{Date(2024, 1, 15)}, false}})});
}

void AddTimeLeft(ClassRow& info) {
  const auto language = Optional("UseThai");
  AddOperations(info,
                {Operation<&StandardObject::TimeLeftDateTime>(
                     56, "TimeLeftDateTime", kClock, {"StartDate", "DoneCount", "TotalCount"},
                     {{{Date(2024, 1, 15, 3, 30), 1, 4}, 0.75}, {{Date(2024, 1, 15), 4, 4}, 0}}),
                 Operation<&StandardObject::FormatTimeleft>(
                     57, "FormatTimeleft", kConvention, {"TimeLeft", language},
                     {{{1.25, false}, u"1 day 6 hours"}, {{1.25}, u"1 วัน 6 ชั่วโมง"}}),
                 Operation<&StandardObject::TimeLeftText>(
                     58, "TimeLeftText", kClock, {"StartDate", "DoneCount", "TotalCount", language},
                     {{{Date(2024, 1, 15, 9, 0), 3, 10, false}, u"1 hour 10 minutes"},
                      {{Date(2024, 1, 15, 9, 0), 0, 10}, u""}})});
}

void AddPaymentTerms(ClassRow& info) {
  AddOperations(
      info,
      {Operation<&StandardObject::GetConditionDueDate>(
           59, "GetConditionDueDate", kNone,
           {"InvoiceDate", "ConditionType", "NetDay", ByRef("DeliveryDay")},
           {{{Date(2024, 1, 15), ZQ7AfterInvoiceDate, 30, 0}, Date(2024, 2, 14)},
            {{Date(2024, 1, 15), ZQ7AfterDeliveryDate, 30, 7}, Date(2024, 2, 21)}}),
       Operation<&StandardObject::FormatCondition2>(
           60, "FormatCondition2", kNone,
           {"Condition1", "ConditionDay1", "ConditionType", "OutputType", "ConditionDay"},
           {{{2, 10, ZQ7AfterInvoiceDate, ZQ7ConditionOutputTypeShort, 30}, u"2.0/10, N/30 AID"},
            {{0, 0, ZQ7AfterInvoiceDate, ZQ7ConditionOutputTypeFull, 30},
             u"N/30 AFTER INVOICE DATE"}}),
       Operation<&StandardObject::FormatCondition>(
           61, "FormatCondition", kNone,
           {"Condition1", "ConditionDay1", "ConditionType", "OutputType", "ConditionDay"},
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
