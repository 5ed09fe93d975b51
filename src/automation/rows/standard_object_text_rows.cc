#include <ZQ7Standard/StandardObject.h>

#include <array>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {
namespace {

using enum Effect;

constexpr std::array kNumberedNames = {"i1",  "i2",  "i3",  "i4",  "i5",  "i6",  "i7",  "i8",
                                       "i9",  "i10", "i11", "i12", "i13", "i14", "i15", "i16",
                                       "i17", "i18", "i19", "i20", "i21", "i22", "i23", "i24",
                                       "i25", "i26", "i27", "i28", "i29", "i30"};

/// The first `count` of the parameters `i1`, `i2` and so on, of which only the first is required.
std::vector<ParameterRow> NumberedTexts(std::size_t count) {
  std::vector<ParameterRow> rows = {kNumberedNames.front()};
  while (rows.size() < count) rows.push_back(Optional(kNumberedNames[rows.size()], u""));
  return rows;
}

/// An option that is on only for the value 1.
ParameterRow Flag(const char* name) {
  return ByRef(Optional(name, 0));
}

void AddLists(ClassRow& info) {
  AddOperations(
      info,
      {Operation<&StandardObject::AddList>(
           86, "AddList", kNone, {"iList", ByRef("iAdd"), ByRef(Optional("SeparateChar", u";"))},
           {{{u"a;b", u"c"}, u"a;b;c"},
            {{u"a;b", u"b"}, u"a;b"},
            {{u"a;b", u"c", u","}, u"a,b,c"}}),
       Operation<&StandardObject::ArrayString>(87, "ArrayString", kNone, NumberedTexts(20),
                                               {{{u"a", u"b"}, TextList{u"a", u"b"}}}),
       Operation<&StandardObject::ArrayString2>(
           88, "ArrayString2", kNone, NumberedTexts(30),
           {{{u"a", u"", u"c"}, TextList{u"a", u"c"}}, {{u"a;;b"}, TextList{u"a", u"b"}}}),
       Operation<&StandardObject::ReverseList>(89, "ReverseList", kNone, {"iList"},
                                               {{{u"a,b,c"}, u"c,b,a,"}}),
       Operation<&StandardObject::TrimN>(
           90, "TrimN", kNone, {"istr", ByRef("iNum")},
           {{{u"10,20,30", 2}, u"20"}, {{u"1,2,3", 3}, u""}, {{u"x,20", 1}, Raises(13)}})});
}

void AddStrings(ClassRow& info) {
  AddOperations(info,
                {Operation<&StandardObject::ReverseString>(91, "ReverseString", kNone, {"iString"},
                                                           {{{u"abc"}, u"cba"}}),
                 Operation<&StandardObject::TrimSpaceToOne>(
                     92, "TrimSpaceToOne", kNone,
                     {"inString", Optional("TrimFront", true), Optional("TrimBack", true)},
                     {{{u"  a   b "}, u"a b"}, {{u"  a   b ", false}, u" a b"}}),
                 Operation<&StandardObject::IncreaseString>(
                     93, "IncreaseString", kNone, {"InputString", Optional("AddStringNumber", u"")},
                     {{{u"INV0099"}, u"INV0100"}, {{u"A009", u"5"}, u"A014"}}),
                 Operation<&StandardObject::FormatTextSort>(
                     94, "FormatTextSort", kNone, {"InputString", "Length"},
                     {{{u"inv12", 8}, u"INV00012"}, {{u"abc", 5}, u"abc01"}}),
                 Operation<&StandardObject::Instr2>(
                     95, "Instr2", kNone,
                     {"start", "MainString", "SearchString", Optional("Compare", ZQ7CompareBinary),
                      Optional("SearchFromBack", false)},
                     {{{1, u"Sales sales", u"sales"}, 7},
                      {{1, u"Sales sales", u"sales", ZQ7CompareText}, 1},
                      {{0, u"abc", u"b"}, Raises(5)}}),
                 Operation<&StandardObject::Random>(96, "Random", kRandom, {"Low", "High"},
                                                    {{{0, 2147483647}, Raises(6)}})});
}

void AddKeys(ClassRow& info) {
  AddOperations(
      info,
      {Operation<&StandardObject::FormatPrimaryKey>(
           97, "FormatPrimaryKey", kNone,
           {"InputKeyValue", Flag("PrimaryKeyMode"), Flag("MaxLen"), Flag("AcceptInsideSpace"),
            Flag("NumberOnly"), Flag("AutoUpperCase"), Flag("AcceptOnlyEnglishCharAndNumber"),
            Flag("AcceptInsideMultiSpace"), Flag("Reserve2"), Flag("Reserve3"), Flag("Reserve4")},
           {{{u" it's a 1% key; "}, u"itsa1key"}, {{u"ab 1", 0, 0, 1, 0, 1}, u"AB 1"}}),
       Operation<&StandardObject::FormatSerialNo>(
           98, "FormatSerialNo", kNone,
           {"InputKeyValue", ByRef(Optional("MaxLen", 30)), Flag("AcceptInsideSpace"),
            Flag("NumberOnly"), Flag("AutoUpperCase"), Flag("AcceptOnlyEnglishCharAndNumber")},
           {{{u" sn-01 2 "}, u"sn-012"}}),
       Operation<&StandardObject::FormatBarCode>(99, "FormatBarCode", kNone,
                                                 {"InputBarCodeValue", Flag("BarcodeType")},
                                                 {{{u" 885-1234 abc "}, u"8851234ABC"}}),
       Operation<&StandardObject::FormatIP>(
           100, "FormatIP", kNone, {"StringIP", Optional("ForceIPV4", true)},
           {{{u"010.001.002.003"}, u"10.1.2.3"}, {{u"10.1.2"}, u""}})});
}

void AddBarcodes(ClassRow& info) {
  AddOperations(
      info,
      {Operation<&StandardObject::GetEAN13ChekDigit>(101, "GetEAN13ChekDigit", kNone, {"sCodice"},
                                                     {{{u"400638133393"}, 1}, {{u"4006"}, -1}}),
       Operation<&StandardObject::GetITF14ChekDigit>(102, "GetITF14ChekDigit", kNone, {"sCodice"},
                                                     {{{u"1540014128876"}, 3}})});
}

void AddCiphers(ClassRow& info) {
  AddOperations(info, {Operation<&StandardObject::EncryptBS>(
                           103, "EncryptBS", kNone, {"StringInput", "PassWord"},
                           {{{u"abc", u"K"}, u"*)("}, {{u"abc", u""}, Raises(11)}}),
                       Operation<&StandardObject::DecryptBS>(104, "DecryptBS", kNone,
                                                             {"EncryptedTextInput", "PassWord"},
                                                             {{{u"*)(", u"K"}, u"abc"}})});
  AddOperations(info, MayBlock({Operation<&StandardObject::Encrypt>(
                                    105, "Encrypt", kOutside, {"StringInput", "PassWord"},
                                    {{{u"abc", u"secret"}, Raises(429)}, {{u"abc", u""}, u"abc"}}),
                                Operation<&StandardObject::Decrypt>(
                                    106, "Decrypt", kOutside, {"EncryptedTextInput", "PassWord"},
                                    {{{u"abc", u"secret"}, Raises(429)}})}));
}

void AddDigests(ClassRow& info) {
  AddOperations(info, {Operation<&StandardObject::CalculateMD5>(
                          107, "CalculateMD5", kNone, {"strMessage"},
                          {{{u"abc"}, u"900150983cd24fb0d6963f7d28e17f72"}})});
}

}  // namespace

void AddTextOperations(ClassRow& owner) {
  for (const auto add : {AddLists, AddStrings, AddKeys, AddBarcodes, AddCiphers, AddDigests}) {
    add(owner);
  }
}

}  // namespace ZQ7Standard::Automation
