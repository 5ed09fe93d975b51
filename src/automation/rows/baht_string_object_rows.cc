#include <ZQ7Standard/BahtStringObject.h>

#include <memory>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {
namespace {

using enum Effect;

/// The parameters of `MoneyText` and of its older name.
const std::vector<ParameterRow> kMoneyText = {
    ByRef("inDouble"), Optional("useBreak", false), Optional("useEnglish", false),
    Optional("NewUnit", u""), Optional("NewSubUnit", u"")};

}  // namespace

ClassRow BahtStringObjectRows() {
  ClassRow info = {.name = "BahtStringObject",
                   .create = [](const Services&) -> std::shared_ptr<void> {
                     return std::make_shared<BahtStringObject>();
                   }};
  AddOperations(
      info,
      {Operation<&BahtStringObject::MoneyText>(
           1, "MoneyText", kNone, kMoneyText,
           {{{121.5}, u"หนึ่งร้อยยี่สิบเอ็ดบาทห้าสิบสตางค์"},
            {{121.5, false, true}, u"One hundred twenty one baht and fifty satang"},
            {{0}, u"ศูนย์บาทถ้วน"}}),
       Operation<&BahtStringObject::BahtString>(2, "BahtString", kNone, kMoneyText,
                                                {{{20, true}, u"=ยี่สิบบาทถ้วน="}}),
       Operation<&BahtStringObject::MoneyTextT>(
           3, "MoneyTextT", kInstance, {ByRef("inDouble")},
           {{{20}, u"ยี่สิบบาทถ้วน"},
            {{20}, u"ยี่สิบดอลลาร์ถ้วน", {{"MoneyText", {1.0, false, false, u"ดอลลาร์"}}}}}),
       Operation<&BahtStringObject::BahtStringT>(4, "BahtStringT", kInstance, {ByRef("inDouble")},
                                                 {{{1}, u"หนึ่งบาทถ้วน"}}),
       Operation<&BahtStringObject::MoneyTextE>(5, "MoneyTextE", kNone, {ByRef("inDouble")},
                                                {{{0.56}, u" baht and fifty six satang"}}),
       Operation<&BahtStringObject::BahtStringE>(6, "BahtStringE", kNone, {ByRef("inDouble")},
                                                 {{{0}, u"Zero baht"}}),
       Operation<&BahtStringObject::MonthText>(7, "MonthText", kNone,
                                               {"MonthNumber", "FullText", ByRef("UseThai")},
                                               {{{1, true, true}, u""}}),
       Operation<&BahtStringObject::About>(8, "About", kNone, {{{}, BahtStringObject().About()}})});
  return info;
}

}  // namespace ZQ7Standard::Automation
