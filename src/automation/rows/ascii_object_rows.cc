#include <ZQ7Standard/ASCIIObject.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {
namespace {

constexpr auto kFile = u"C:\\shop\\set.ini";

std::shared_ptr<void> CreateASCIIObject(const HostServices& services) {
  return std::make_shared<ASCIIObject>(
      ASCIIServices{.file_status = SystemFileStatus(services.drives),
                    .file_reader = SystemFileReader(services.drives),
                    .file_writer = SystemFileWriter(services.drives),
                    .file_rewriter = SystemFileRewriter(services.drives),
                    .message_box = services.message_box,
                    .clock = services.clock});
}

void AddSettings(ClassRow& info) {
  AddSubject(
      info, "Settings, lines of the form [KEY]=value",
      {Operation<&ASCIIObject::GetValue>(
           1, "GetValue", {"iTextFile", "IKey"}, "The value of a key.",
           {{{kFile, u"PORT"}, u"9600", {{"Setvalue", {kFile, u"Port", u"9600"}}}},
            {{u"C:\\shop\\none.ini", u"Port"}, u""}}),
       Operation<&ASCIIObject::Setvalue>(2, "Setvalue", {"iTextFile", "IKey", "iValue"},
                                         "Sets the value of a key.", {{{kFile, u"Port", u"9600"}}}),
       Operation<&ASCIIObject::DeleteValue>(3, "DeleteValue", {"iTextFile", "IKey"}, "Drops a key.",
                                            {{{kFile, u"Port"}}})});
}

void AddLogs(ClassRow& info) {
  AddSubject(info, "Logs",
             {Operation<&ASCIIObject::AddLog>(
                 4, "AddLog", {"iTextFile", "iOwner", "iType", "iSuccess", "iDescription"},
                 "Appends a line with date and time to a log.",
                 {{{u"C:\\shop\\sales.log", u"ADMIN", u"LOGIN", u"Y", u"user logged in"}}})});
}

void AddTexts(ClassRow& info) {
  constexpr auto kNote = u"C:\\shop\\note.txt";
  const std::vector<Call> two_lines = {{"SaveStringToTextFile", {kNote, u"one\r\ntwo"}}};
  AddSubject(
      info, "Whole texts",
      {Operation<&ASCIIObject::GETAllTextFile>(5, "GETAllTextFile", {"iTextFile"},
                                               "All lines of a file.",
                                               {{{kNote}, u"one\r\ntwo", two_lines}}),
       Operation<&ASCIIObject::GETLineTextFile>(
           6, "GETLineTextFile", {"iTextFile", Optional("FromLine", 0), Optional("ToLine", 0)},
           "The first lines of a file, as many as the numbers from `FromLine` to `ToLine`.",
           {{{kNote, 1, 2}, u"one\r\ntwo", two_lines}, {{kNote, 1, 1}, Raises(6), two_lines}}),
       Operation<&ASCIIObject::SaveStringToTextFile>(
           7, "SaveStringToTextFile", {"iTextFile", "iValue"},
           "Makes a text the content of a file.", {{{kNote, u"one"}}}),
       Operation<&ASCIIObject::SaveStringToTextFile2>(
           8, "SaveStringToTextFile2", {"iTextFile", "iValue", Optional("UseAppendMode", false)},
           "Makes a text the content of a file, or adds it.", {{{kNote, u"two", true}}})});
}

}  // namespace

ClassRow ASCIIObjectEntry() {
  ClassRow info = {.name = "ASCIIObject",
                   .help = "Settings, logs and whole texts in text files.",
                   .create = CreateASCIIObject};
  info.properties = {Property<&ASCIIObject::DisableMsgLevel, &ASCIIObject::SetDisableMsgLevel>(
      9, "DisableMsgLevel", "Messages are shown from level 1 up.")};
  for (const auto add : {AddSettings, AddLogs, AddTexts}) add(info);
  return info;
}

}  // namespace ZQ7Standard::Automation
