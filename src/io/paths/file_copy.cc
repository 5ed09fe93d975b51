#include <ZQ7Standard/DiskObject.h>

#include <algorithm>
#include <vector>

#include "base/raise.h"
#include "io/failures.h"
#include "io/paths/folder_status.h"

namespace ZQ7Standard {
namespace {

Text AsFolder(TextView path) {
  Text folder(path);
  if (!folder.ends_with(u'\\')) folder += u'\\';
  return folder;
}

using FileTime = decltype(FileStatus::last_modified);

/// The multiple of `step` at or before `time`, before 1970 too.
FileTime FloorTo(std::chrono::nanoseconds step, FileTime time) {
  const auto past = time.time_since_epoch() % step;
  return time - (past.count() < 0 ? past + step : past);
}

using FolderIdentities = std::vector<FolderIdentity>;

bool Contains(const FolderIdentities& folders, const FolderIdentity& folder) {
  return std::ranges::find(folders, folder) != folders.end();
}

[[noreturn]] void RefuseEndlessCopy(const Text& path) {
  Raise(Error::kPathFileAccess, {"XCopyFile", "to_file"}, path, "a copy into itself");
}

/// Copies the contents of the folder `from` into the folder `to`, both ending in "\", and returns
/// how many entries. Subfolders follow the files. None may be one of `around`, the folders that
/// contain `from` and `to`: the copy would contain itself.
std::int32_t CopyEntries(ServiceSet& services, const Text& from, const Text& to,
                         FolderIdentities& around) {
  const std::vector<FolderEntry> entries = services.Folders().List(from);
  for (const auto& [name, folder] : entries) {
    if (!folder) {
      services.FileCopier().Copy(from + name, to + name, ExistingTarget::kReplace);
      continue;
    }
    if (Contains(around, *folder)) RefuseEndlessCopy(from + name);
    services.Folders().Create(to + name);
  }
  auto count = static_cast<std::int32_t>(entries.size());
  for (const auto& [name, folder] : entries) {
    if (!folder) continue;
    around.push_back(*folder);
    count += CopyEntries(services, from + name + u'\\', to + name + u'\\', around);
    around.pop_back();
  }
  return count;
}

/// Copies a folder as `XCopyFile` does.
std::int32_t CopyFolder(ServiceSet& services, TextView from_file, TextView to_file) {
  const FolderIdentities source = services.Folders().Enclosing(from_file);
  if (!IsFolder(services, from_file) || source.empty()) return 0;
  const Text from = AsFolder(from_file);
  const Text to = AsFolder(to_file);
  FolderIdentities around = services.Folders().Enclosing(to);
  const bool is_source = IsFolder(services, to) && around == source;
  if (Contains(around, source.front()) && !is_source) RefuseEndlessCopy(Text(to_file));
  const bool is_target_there = Try([&] { MakeFolder(services, to); });
  around = services.Folders().Enclosing(to);
  around.push_back(source.front());
  return (is_target_there ? 1 : 0) + CopyEntries(services, from, to, around);
}

/// Whether the file `path` has the last-modified time of `source`, to the precision of its file
/// system.
bool HasTimeOf(ServiceSet& services, const FileStatus& source, TextView path,
               const FileStatus& status) {
  if (status.last_modified == source.last_modified) return true;
  auto step = std::chrono::nanoseconds(1);
  Try([&] { step = services.FileStatus().TimeStep(path); });
  return step.count() > 0 && status.last_modified == FloorTo(step, source.last_modified);
}

}  // namespace

std::int16_t DiskObject::CopyFileCheck(TextView FromFile, TextView ToFile, bool OverwriteFile,
                                       std::int16_t /*CheckCondition*/) const {
  const auto from = StatusOf(*services_, FromFile);
  if (!from || from->is_folder) return 0;
  const auto to = StatusOf(*services_, ToFile);
  if (to && !to->is_folder) {
    if (to->read_only) Try([&] { services_->FileStatus().ClearReadOnly(ToFile); });
    if (HasTimeOf(*services_, *from, ToFile, *to)) return 0;
  }
  const auto existing = OverwriteFile ? ExistingTarget::kReplace : ExistingTarget::kRefuse;
  Try([&] { services_->FileCopier().Copy(FromFile, ToFile, existing); });
  return 1;
}

std::int32_t DiskObject::XCopyFile(TextView from_file, TextView to_file) const {
  return Named({"XCopyFile"}, [&] { return CopyFolder(*services_, from_file, to_file); });
}

}  // namespace ZQ7Standard
