#include <ZQ7Standard/BitByteObject.h>

#include <memory>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {

using enum Effect;

ClassRow BitByteObjectRows() {
  ClassRow info = {.name = "BitByteObject", .create = [](const Services&) -> std::shared_ptr<void> {
                     return std::make_shared<BitByteObject>();
                   }};
  AddOperations(
      info,
      {Operation<&BitByteObject::Bin2Oct>(1, "Bin2Oct", kNone, {"BinString"}, {{{u"1000"}, u"10"}}),
       Operation<&BitByteObject::Bin2hex>(2, "Bin2hex", kNone, {"BinString"}, {{{u"101"}, u"5"}}),
       Operation<&BitByteObject::Bin2Dec>(3, "Bin2Dec", kNone, {"BinString"},
                                          {{{u"1010"}, 10}, {{u"111111111111111"}, Raises(6)}}),
       Operation<&BitByteObject::Oct2Bin>(4, "Oct2Bin", kNone,
                                          {"OctString", Optional("KeepZeroFront", false)},
                                          {{{u"17"}, u"1111"}, {{u"17", true}, u"001111"}}),
       Operation<&BitByteObject::Hex2Bin>(5, "Hex2Bin", kNone,
                                          {"HexString", Optional("KeepZeroFront", false)},
                                          {{{u"5"}, u"101"}, {{u"5", true}, u"0101"}}),
       Operation<&BitByteObject::Oct2hex>(6, "Oct2hex", kNone, {"OctString"},
                                          {{{u"17"}, u"F"}, {{u"0"}, u""}}),
       Operation<&BitByteObject::Hex2Oct>(7, "Hex2Oct", kNone, {"HexString"}, {{{u"F"}, u"17"}}),
       Operation<&BitByteObject::Oct2Dec>(8, "Oct2Dec", kNone, {"OctString"},
                                          {{{17}, 15}, {{187}, 1}}),
       Operation<&BitByteObject::Hex2Dec>(9, "Hex2Dec", kNone, {"HexString"},
                                          {{{10}, 16}, {{9999}, -26215}}),
       Operation<&BitByteObject::Hex2Dec2>(10, "Hex2Dec2", kNone, {"HexString"},
                                           {{{u"FF"}, 255}, {{u"FFFF"}, -1}}),
       Operation<&BitByteObject::Dec2Oct>(11, "Dec2Oct", kNone, {"DecNumber"},
                                          {{{8}, u"10"}, {{-1}, u"37777777777"}}),
       Operation<&BitByteObject::Dec2hex>(12, "Dec2hex", kNone, {"DecNumber"},
                                          {{{255}, u"FF"}, {{-1}, u"FFFFFFFF"}}),
       Operation<&BitByteObject::Dec2Bin>(13, "Dec2Bin", kNone,
                                          {"Dec", Optional("KeepZeroFront", false)},
                                          {{{5}, u"101"}, {{8}, u"001000"}}),
       Operation<&BitByteObject::Base26To10>(14, "Base26To10", kNone, {"Base26"},
                                             {{{u"AA"}, 27}, {{u"a"}, 0}}),
       Operation<&BitByteObject::Base10To26>(15, "Base10To26", kNone, {"colNum"}, {{{702}, u"ZZ"}}),
       Operation<&BitByteObject::BitRead>(16, "BitRead", kNone, {"DecNumber", "BitDigitFormBack"},
                                          {{{5, 1}, -1}, {{5, 2}, 0}}),
       Operation<&BitByteObject::BitWrite>(17, "BitWrite", kNone,
                                           {"DecNumber", "BitDigitFormBack", "NewValue"},
                                           {{{5, 2, 1}, 7}, {{5, 1, -1}, 4}, {{5, 4, 1}, 0}}),
       Operation<&BitByteObject::BitSwitch>(18, "BitSwitch", kNone,
                                            {"DecNumber", "BitDigitFormBack"}, {{{5, 1}, 4}})});
  return info;
}

}  // namespace ZQ7Standard::Automation
