#include <ZQ7Standard/StandardObject.h>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {
namespace {

void AddRounding(ClassRow& info) {
  AddSubject(
      info, "Rounding",
      {Operation<&StandardObject::FixNumber2>(
           62, "FixNumber2", {"iValue", "DecimalDigit", "IgnoreNextDigit"},
           "Rounds a number as it prints, half away from zero.",
           {{{2.345, 2, false}, 2.35}, {{1.2349, 2, true}, 1.23}, {{1.5, -1, false}, Raises(5)}}),
       Operation<&StandardObject::FixNumber>(63, "FixNumber", {"iValue", "DecimalDigit"},
                                             "`FixNumber2` without `IgnoreNextDigit`.",
                                             {{{1.005, 2}, 1.01}}),
       Operation<&StandardObject::Round>(64, "Round", {"iValue", "DecimalDigit"},
                                         "The same as `FixNumber`.", {{{-2.5, 0}, -3}}),
       Operation<&StandardObject::Floor>(65, "Floor", {"iValue"}, "Cuts a number toward zero.",
                                         {{{-2.5}, -2}, {{2.999}, 3}}),
       Operation<&StandardObject::Ceiling>(66, "Ceiling", {"iValue"},
                                           "`Floor`, plus 1 when the number is above it.",
                                           {{{2.001}, 3}, {{-2.5}, -2}}),
       Operation<&StandardObject::FixNumberWithCutMode>(
           67, "FixNumberWithCutMode", {"iValue", "DecimalDigit", "CutMode"},
           "Rounds a number and brings it to a whole unit.",
           {{{12.345, 2, ZQ7FixUnitNone}, 12.35}, {{12.345, 2, ZQ7FixUnitAllUp}, 13}}),
       Operation<&StandardObject::FixMoneyDecimal>(
           68, "FixMoneyDecimal", {"iValue", "IncreaseToCeiling", Optional("CelingList", u"")},
           "Brings an amount to a whole unit.",
           {{{Currency(12.25), true}, 13}, {{Currency(12.75), false, u"25;50;75"}, 12}})});
}

void AddReading(ClassRow& info) {
  const auto digits = Optional("DecimalDigit", -1);
  const auto dot = Optional("IncludeDot", false);
  const auto sign = Optional("IncludeSign", false);
  AddSubject(
      info, "Numbers from text",
      {Operation<&StandardObject::StrVal>(
           69, "StrVal", {"istr"}, "Reads the number at the front of a typed text.",
           {{{u"1,234.50 baht"}, 1234.5}, {{u"12.5%"}, 0.125}, {{u"abc"}, 0}}),
       Operation<&StandardObject::StrVal2>(70, "StrVal2", {"istr", "DecimalDigit"},
                                           "`StrVal`, rounded; -1 does not round.",
                                           {{{u"1.005", 2}, 1.01}}),
       Operation<&StandardObject::StrInt>(71, "StrInt", {"istr", digits},
                                          "`StrVal2` as a 16-bit integer, a half going to even.",
                                          {{{u"2.5"}, 2}, {{u"40,000"}, Raises(6)}}),
       Operation<&StandardObject::StrLng>(72, "StrLng", {"istr", digits},
                                          "`StrVal2` as a 32-bit integer, a half going to even.",
                                          {{{u"40,000"}, 40000}}),
       Operation<&StandardObject::StrSng>(73, "StrSng", {"istr", digits},
                                          "`StrVal2` as a 32-bit float.", {{{u"1.5"}, 1.5}}),
       Operation<&StandardObject::Null2Zero>(74, "Null2Zero", {Optional("InputValue")},
                                             "A number, or 0 for a missing one.",
                                             {{{1.5}, 1.5}, {{}, 0}}),
       Operation<&StandardObject::Numb>(
           75, "Numb", {"iText", dot, sign}, "The digits of a text.",
           {{{u"INV-0042.5"}, u"00425"}, {{u"-42.5", true, true}, u"-42.5"}}),
       Operation<&StandardObject::Trim2Number>(76, "Trim2Number", {"iText", dot, sign},
                                               "The same as `Numb`.", {{{u"02-123"}, u"02123"}}),
       Operation<&StandardObject::d2h>(77, "d2h", {"iDay"}, "Days to hours.", {{{0.5}, 12}}),
       Operation<&StandardObject::d2m>(78, "d2m", {"iDay"}, "Days to minutes.", {{{0.5}, 720}}),
       Operation<&StandardObject::h2d>(79, "h2d", {"iHour"}, "Hours to days.", {{{12}, 0.5}}),
       Operation<&StandardObject::m2d>(80, "m2d", {"iMinute"}, "Minutes to days.", {{{720}, 0.5}}),
       Operation<&StandardObject::d2Str>(81, "d2Str", {"iValue"}, "The shortest text of a number.",
                                         {{{1234.5}, u"1234.5"}, {{1e15}, u"1E+15"}})});
}

void AddCostCodes(ClassRow& info) {
  AddSubject(
      info, "Cost prices in letters",
      {Operation<&StandardObject::FormatCostCode>(
           82, "FormatCostCode", {"Price", "CodeWord"},
           "Writes a cost price in the letters of a code word.",
           {{{125.5, u"BLACKHORSE"}, u"BLK.KE"}, {{125.5, u"BLACK"}, Raises(5)}}),
       Operation<&StandardObject::FormatCostCode2>(
           83, "FormatCostCode2", {"Price", "CodeWord", "RepeatCharacter"},
           "The same with a character for each repeated digit.",
           {{{5000, u"BLACKHORSE", u"X"}, u"KEXX"}, {{55.5, u"BLACKHORSE", u"X"}, u"KX.XE"}}),
       Operation<&StandardObject::DeFormatCostCode>(
           84, "DeFormatCostCode", {"CostCode", "CodeWord"},
           "Reads the price that `FormatCostCode` wrote.",
           {{{u"BLK.KE", u"BLACKHORSE"}, 125.5}, {{u"BLK-", u"BLACKHORSE"}, Raises(13)}}),
       Operation<&StandardObject::DeFormatCostCode2>(
           85, "DeFormatCostCode2", {"CostCode", "CodeWord", "RepeatCharacter"},
           "Reads the price that `FormatCostCode2` wrote.",
           {{{u"KEXX", u"BLACKHORSE", u"X"}, 5000}})});
}

}  // namespace

void AddNumberOperations(ClassRow& owner) {
  AddRounding(owner);
  AddReading(owner);
  AddCostCodes(owner);
}

}  // namespace ZQ7Standard::Automation
