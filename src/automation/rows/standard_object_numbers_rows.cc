#include <ZQ7Standard/StandardObject.h>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {
namespace {

using enum Effect;

void AddRounding(ClassRow& info) {
  AddOperations(
      info,
      {Operation<&StandardObject::FixNumber2>(
           62, "FixNumber2", kNone, {"iValue", "DecimalDigit", "IgnoreNextDigit"},
           {{{2.345, 2, false}, 2.35}, {{1.2349, 2, true}, 1.23}, {{1.5, -1, false}, Raises(5)}}),
       Operation<&StandardObject::FixNumber>(63, "FixNumber", kNone, {"iValue", "DecimalDigit"},
                                             {{{1.005, 2}, 1.01}}),
       Operation<&StandardObject::Round>(64, "Round", kNone, {"iValue", "DecimalDigit"},
                                         {{{-2.5, 0}, -3}}),
       Operation<&StandardObject::Floor>(65, "Floor", kNone, {"iValue"},
                                         {{{-2.5}, -2}, {{2.999}, 3}}),
       Operation<&StandardObject::Ceiling>(66, "Ceiling", kNone, {"iValue"},
                                           {{{2.001}, 3}, {{-2.5}, -2}}),
       Operation<&StandardObject::FixNumberWithCutMode>(
           67, "FixNumberWithCutMode", kNone, {"iValue", "DecimalDigit", "CutMode"},
           {{{12.345, 2, ZQ7FixUnitNone}, 12.35}, {{12.345, 2, ZQ7FixUnitAllUp}, 13}}),
       Operation<&StandardObject::FixMoneyDecimal>(
           68, "FixMoneyDecimal", kNone,
           {"iValue", "IncreaseToCeiling", Optional("CelingList", u"")},
           {{{Currency(12.25), true}, 13}, {{Currency(12.75), false, u"25;50;75"}, 12}})});
}

void AddReading(ClassRow& info) {
  const auto digits = Optional("DecimalDigit", -1);
  const auto dot = Optional("IncludeDot", false);
  const auto sign = Optional("IncludeSign", false);
  AddOperations(
      info,
      {Operation<&StandardObject::StrVal>(
           69, "StrVal", kNone, {"istr"},
           {{{u"1,234.50 baht"}, 1234.5}, {{u"12.5%"}, 0.125}, {{u"abc"}, 0}}),
       Operation<&StandardObject::StrVal2>(70, "StrVal2", kNone, {"istr", "DecimalDigit"},
                                           {{{u"1.005", 2}, 1.01}}),
       Operation<&StandardObject::StrInt>(71, "StrInt", kNone, {"istr", digits},
                                          {{{u"2.5"}, 2}, {{u"40,000"}, Raises(6)}}),
       Operation<&StandardObject::StrLng>(72, "StrLng", kNone, {"istr", digits},
                                          {{{u"40,000"}, 40000}}),
       Operation<&StandardObject::StrSng>(73, "StrSng", kNone, {"istr", digits}, {{{u"1.5"}, 1.5}}),
       Operation<&StandardObject::Null2Zero>(
           74, "Null2Zero", kNone, {Nullable(Optional("InputValue"))}, {{{1.5}, 1.5}, {{}, 0}}),
       Operation<&StandardObject::Numb>(
           75, "Numb", kNone, {"iText", dot, sign},
           {{{u"INV-0042.5"}, u"00425"}, {{u"-42.5", true, true}, u"-42.5"}}),
       Operation<&StandardObject::Trim2Number>(76, "Trim2Number", kNone, {"iText", dot, sign},
                                               {{{u"02-123"}, u"02123"}}),
       Operation<&StandardObject::d2h>(77, "d2h", kNone, {"iDay"}, {{{0.5}, 12}}),
       Operation<&StandardObject::d2m>(78, "d2m", kNone, {"iDay"}, {{{0.5}, 720}}),
       Operation<&StandardObject::h2d>(79, "h2d", kNone, {"iHour"}, {{{12}, 0.5}}),
       Operation<&StandardObject::m2d>(80, "m2d", kNone, {"iMinute"}, {{{720}, 0.5}}),
       Operation<&StandardObject::d2Str>(81, "d2Str", kNone, {"iValue"},
                                         {{{1234.5}, u"1234.5"}, {{1e15}, u"1E+15"}})});
}

void AddCostCodes(ClassRow& info) {
  AddOperations(
      info, {Operation<&StandardObject::FormatCostCode>(
                 82, "FormatCostCode", kNone, {"Price", "CodeWord"},
                 {{{125.5, u"BLACKHORSE"}, u"BLK.KE"}, {{125.5, u"BLACK"}, Raises(5)}}),
             Operation<&StandardObject::FormatCostCode2>(
                 83, "FormatCostCode2", kNone, {"Price", "CodeWord", "RepeatCharacter"},
                 {{{5000, u"BLACKHORSE", u"X"}, u"KEXX"}, {{55.5, u"BLACKHORSE", u"X"}, u"KX.XE"}}),
             Operation<&StandardObject::DeFormatCostCode>(
                 84, "DeFormatCostCode", kNone, {"CostCode", "CodeWord"},
                 {{{u"BLK.KE", u"BLACKHORSE"}, 125.5}, {{u"BLK-", u"BLACKHORSE"}, Raises(13)}}),
             Operation<&StandardObject::DeFormatCostCode2>(
                 85, "DeFormatCostCode2", kNone, {"CostCode", "CodeWord", "RepeatCharacter"},
                 {{{u"KEXX", u"BLACKHORSE", u"X"}, 5000}})});
}

}  // namespace

void AddNumberOperations(ClassRow& owner) {
  AddRounding(owner);
  AddReading(owner);
  AddCostCodes(owner);
}

}  // namespace ZQ7Standard::Automation
