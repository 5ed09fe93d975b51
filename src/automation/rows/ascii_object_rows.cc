#include <ZQ7Standard/ASCIIObject.h>

#include <memory>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {
namespace {

using enum Effect;

constexpr auto kFile = u"C:\\shop\\set.ini";

std::shared_ptr<void> CreateASCIIObject(const Services& services) {
  return std::make_shared<ASCIIObject>(services);
}

void AddSettings(ClassRow& info) {
  AddOperations(
      info,
      MayBlock({Operation<&ASCIIObject::GetValue>(
                    1, "GetValue", kOutside, {"iTextFile", "IKey"},
                    {{{kFile, u"PORT"}, u"9600", {{"Setvalue", {kFile, u"Port", u"9600"}}}},
                     {{u"C:\\shop\\none.ini", u"Port"}, u""}}),
                Operation<&ASCIIObject::Setvalue>(2, "Setvalue", kOutside,
                                                  {"iTextFile", "IKey", "iValue"},
                                                  {{{kFile, u"Port", u"9600"}}}),
                Operation<&ASCIIObject::DeleteValue>(
                    3, "DeleteValue", kOutside, {"iTextFile", "IKey"}, {{{kFile, u"Port"}}})}));
}

void AddLogs(ClassRow& info) {
  AddOperations(
      info, MayBlock({Operation<&ASCIIObject::AddLog>(
                4, "AddLog", kOutside, {"iTextFile", "iOwner", "iType", "iSuccess", "iDescription"},
                {{{u"C:\\shop\\sales.log", u"ADMIN", u"LOGIN", u"Y", u"user logged in"}}})}));
}

void AddTexts(ClassRow& info) {
  constexpr auto kNote = u"C:\\shop\\note.txt";
  const std::vector<Call> two_lines = {{"SaveStringToTextFile", {kNote, u"one\r\ntwo"}}};
  AddOperations(
      info,
      MayBlock(
          {Operation<&ASCIIObject::GETAllTextFile>(5, "GETAllTextFile", kOutside, {"iTextFile"},
                                                   {{{kNote}, u"one\r\ntwo", two_lines}}),
           Operation<&ASCIIObject::GETLineTextFile>(
               6, "GETLineTextFile", kOutside,
               {"iTextFile", Optional("FromLine", 0), Optional("ToLine", 0)},
               {{{kNote, 1, 2}, u"one\r\ntwo", two_lines}, {{kNote, 1, 1}, Raises(6), two_lines}}),
           Operation<&ASCIIObject::SaveStringToTextFile>(
               7, "SaveStringToTextFile", kOutside, {"iTextFile", "iValue"}, {{{kNote, u"one"}}}),
           Operation<&ASCIIObject::SaveStringToTextFile2>(
               8, "SaveStringToTextFile2", kOutside,
               {"iTextFile", "iValue", Optional("UseAppendMode", false)},
               {{{kNote, u"two", true}}})}));
}

}  // namespace

ClassRow ASCIIObjectRows() {
  ClassRow info = {.name = "ASCIIObject", .create = CreateASCIIObject};
  info.properties = {Property<&ASCIIObject::DisableMsgLevel, &ASCIIObject::SetDisableMsgLevel>(
      9, "DisableMsgLevel")};
  for (const auto add : {AddSettings, AddLogs, AddTexts}) add(info);
  return info;
}

}  // namespace ZQ7Standard::Automation
