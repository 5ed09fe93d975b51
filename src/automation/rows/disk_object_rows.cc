#include <ZQ7Standard/DiskObject.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {
namespace {

std::shared_ptr<void> CreateDiskObject(const HostServices& services) {
  return std::make_shared<DiskObject>(DiskServices{.status = SystemFileStatus(services.drives),
                                                   .folders = SystemFolders(services.drives),
                                                   .copier = SystemFileCopier(services.drives)});
}

void AddPaths(ClassRow& info) {
  AddSubject(
      info, "Paths and the folders on them",
      {Operation<&DiskObject::FileName>(1, "FileName", {"full_name"},
                                        R"(The text behind the last "\".)",
                                        {{{u"C:\\a\\b.txt"}, u"b.txt"}}),
       Operation<&DiskObject::Pathname>(2, "Pathname", {"full_name"},
                                        R"(The text before the last "\".)",
                                        {{{u"C:\\a\\b.txt"}, u"C:\\a"}, {{u"b.txt"}, u""}}),
       Operation<&DiskObject::trimPath>(3, "trimPath", {"Path"},
                                        R"(A path without the "\" at its end.)",
                                        {{{u"C:\\a\\\\"}, u"C:\\a"}}),
       Operation<&DiskObject::ScaleFullPath>(
           4, "ScaleFullPath", {"inFullPath", Optional("MaxLen", 0)},
           "A path shortened for display.",
           {{{u"C:\\Data\\Sales\\2024\\report.xls"}, u"C:\\Data\\...\\report.xls"},
            {{u"C:\\Data\\report.xls"}, u"C:\\Data\\report.xls"}}),
       Operation<&DiskObject::CreateFullPath>(5, "CreateFullPath", {"FullPathName"},
                                              "Makes every folder of a path that is not there.",
                                              {{{u"C:\\shop\\2567\\01"}, -1}, {{u""}, 0}})});
}

void AddCopies(ClassRow& info) {
  AddSubject(info, "Files and folders copied",
             {Operation<&DiskObject::CopyFileCheck>(
                  6, "CopyFileCheck",
                  {"FromFile", "ToFile", ByRef(Optional("OverwriteFile", false)),
                   Optional("CheckCondition", 0)},
                  "Copies a file when it changed; 1 when it tried to.",
                  {{{u"C:\\shop\\none.txt", u"C:\\shop\\copy.txt"}, 0}}),
              Operation<&DiskObject::XCopyFile>(7, "XCopyFile", {"from_file", "to_file"},
                                                "Copies a folder tree; the number of entries.",
                                                {{{u"C:\\shop\\2567", u"C:\\shop\\old"},
                                                  2,
                                                  {{"CreateFullPath", {u"C:\\shop\\2567\\01"}}}},
                                                 {{u"C:\\shop\\none", u"C:\\shop\\old"}, 0}})});
}

}  // namespace

ClassRow DiskObjectEntry() {
  ClassRow info = {.name = "DiskObject",
                   .help = "Paths taken apart and shortened, folders made, files copied.",
                   .create = CreateDiskObject};
  AddPaths(info);
  AddCopies(info);
  return info;
}

}  // namespace ZQ7Standard::Automation
