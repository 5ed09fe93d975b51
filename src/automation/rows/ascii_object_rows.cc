#include <ZQ7Standard/ASCIIObject.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {
namespace {

constexpr auto kFile = u"C:\\shop\\set.ini";

std::shared_ptr<void> CreateASCIIObject(const Services& services) {
  return std::make_shared<ASCIIObject>(services);
}

void AddSettings(ClassInfo& info) {
  AddSubject(
      info, "Settings, lines of the form [KEY]=value",
      {Operation<&ASCIIObject::GetValue>(
           "GetValue", {"iTextFile", "IKey"}, "The value of a key.",
           {{{kFile, u"PORT"}, u"9600", {{"Setvalue", {kFile, u"Port", u"9600"}}}},
            {{u"C:\\shop\\none.ini", u"Port"}, u""}}),
       Operation<&ASCIIObject::Setvalue>("Setvalue", {"iTextFile", "IKey", "iValue"},
                                         "Sets the value of a key.", {{{kFile, u"Port", u"9600"}}}),
       Operation<&ASCIIObject::DeleteValue>("DeleteValue", {"iTextFile", "IKey"}, "Drops a key.",
                                            {{{kFile, u"Port"}}})});
}

void AddLogs(ClassInfo& info) {
  AddSubject(info, "Logs",
             {Operation<&ASCIIObject::AddLog>(
                 "AddLog", {"iTextFile", "iOwner", "iType", "iSuccess", "iDescription"},
                 "Appends a line with date and time to a log.",
                 {{{u"C:\\shop\\sales.log", u"ADMIN", u"LOGIN", u"Y", u"user logged in"}}})});
}

void AddTexts(ClassInfo& info) {
  constexpr auto kNote = u"C:\\shop\\note.txt";
  const std::vector<Call> two_lines = {{"SaveStringToTextFile", {kNote, u"one\r\ntwo"}}};
  AddSubject(
      info, "Whole texts",
      {Operation<&ASCIIObject::GETAllTextFile>("GETAllTextFile", {"iTextFile"},
                                               "All lines of a file.",
                                               {{{kNote}, u"one\r\ntwo", two_lines}}),
       Operation<&ASCIIObject::GETLineTextFile>(
           "GETLineTextFile", {"iTextFile", Optional("FromLine", 0), Optional("ToLine", 0)},
           "The first lines of a file, as many as the numbers from `FromLine` to `ToLine`.",
           {{{kNote, 1, 2}, u"one\r\ntwo", two_lines}, {{kNote, 1, 1}, Raises(6), two_lines}}),
       Operation<&ASCIIObject::SaveStringToTextFile>(
           "SaveStringToTextFile", {"iTextFile", "iValue"}, "Makes a text the content of a file.",
           {{{kNote, u"one"}}}),
       Operation<&ASCIIObject::SaveStringToTextFile2>(
           "SaveStringToTextFile2", {"iTextFile", "iValue", Optional("UseAppendMode", false)},
           "Makes a text the content of a file, or adds it.", {{{kNote, u"two", true}}})});
}

}  // namespace

ClassInfo ASCIIObjectEntry() {
  ClassInfo info = {.name = "ASCIIObject",
                    .help = "Settings, logs and whole texts in text files.",
                    .create = CreateASCIIObject};
  info.properties = {Property<&ASCIIObject::DisableMsgLevel, &ASCIIObject::SetDisableMsgLevel>(
      "DisableMsgLevel", "Messages are shown from level 1 up.")};
  for (const auto add : {AddSettings, AddLogs, AddTexts}) add(info);
  return info;
}

}  // namespace ZQ7Standard::Automation
