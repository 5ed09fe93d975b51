#include <ZQ7Standard/DiskObject.h>

#include <memory>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {
namespace {

using enum Effect;

std::shared_ptr<void> CreateDiskObject(const Services& services) {
  return std::make_shared<DiskObject>(services);
}

void AddPaths(ClassRow& info) {
  AddOperations(
      info, {Operation<&DiskObject::FileName>(1, "FileName", kNone, {"full_name"},
                                              {{{u"C:\\a\\b.txt"}, u"b.txt"}}),
             Operation<&DiskObject::Pathname>(2, "Pathname", kNone, {"full_name"},
                                              {{{u"C:\\a\\b.txt"}, u"C:\\a"}, {{u"b.txt"}, u""}}),
             Operation<&DiskObject::trimPath>(3, "trimPath", kNone, {"Path"},
                                              {{{u"C:\\a\\\\"}, u"C:\\a"}}),
             Operation<&DiskObject::ScaleFullPath>(
                 4, "ScaleFullPath", kNone, {"inFullPath", Optional("MaxLen", 0)},
                 {{{u"C:\\Data\\Sales\\2024\\report.xls"}, u"C:\\Data\\...\\report.xls"},
                  {{u"C:\\Data\\report.xls"}, u"C:\\Data\\report.xls"}})});
}

void AddFiles(ClassRow& info) {
  AddOperations(
      info,
      MayBlock(
          {Operation<&DiskObject::CreateFullPath>(5, "CreateFullPath", kOutside, {"FullPathName"},
                                                  {{{u"C:\\shop\\2567\\01"}, -1}, {{u""}, 0}}),
           Operation<&DiskObject::CopyFileCheck>(
               6, "CopyFileCheck", kOutside,
               {"FromFile", "ToFile", ByRef(Optional("OverwriteFile", false)),
                Optional("CheckCondition", 0)},
               {{{u"C:\\shop\\none.txt", u"C:\\shop\\copy.txt"}, 0}}),
           Operation<&DiskObject::XCopyFile>(7, "XCopyFile", kOutside, {"from_file", "to_file"},
                                             {{{u"C:\\shop\\2567", u"C:\\shop\\old"},
                                               2,
                                               {{"CreateFullPath", {u"C:\\shop\\2567\\01"}}}},
                                              {{u"C:\\shop\\none", u"C:\\shop\\old"}, 0}})}));
}

}  // namespace

ClassRow DiskObjectRows() {
  ClassRow info = {.name = "DiskObject", .create = CreateDiskObject};
  AddPaths(info);
  AddFiles(info);
  return info;
}

}  // namespace ZQ7Standard::Automation
