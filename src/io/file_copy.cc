#include <ZQ7Standard/DiskObject.h>
#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "io/failures.h"
#include "text/unicode.h"

namespace ZQ7Standard {
namespace {

Text AsFolder(TextView path) {
  Text folder(path);
  if (!folder.ends_with(u'\\')) folder += u'\\';
  return folder;
}

/// The path, ending in "/", without detours by "." and "..".
std::string Straight(const Text& folder) {
  std::string path = Utf8(folder);
  std::ranges::replace(path, '\\', '/');
  return std::filesystem::path(path).lexically_normal();
}

bool IsInside(const Text& folder, const Text& other) {
  const std::string inner = Straight(folder);
  const std::string outer = Straight(other);
  return inner != outer && inner.starts_with(outer);
}

/// Copies what the folder `from` holds into the folder `to`, both ending in "\", and
/// counts it. The subfolders are filled after the files are copied.
std::int32_t CopyEntries(const DiskServices& services, const Text& from, const Text& to) {
  const std::vector<FolderEntry> entries = services.folders->List(from);
  for (const auto& [name, is_folder] : entries) {
    if (is_folder) {
      services.folders->Create(to + name);
    } else {
      services.copier->Copy(from + name, to + name, ExistingTarget::kReplace);
    }
  }
  auto count = static_cast<std::int32_t>(entries.size());
  for (const auto& [name, is_folder] : entries) {
    if (is_folder) count += CopyEntries(services, from + name + u'\\', to + name + u'\\');
  }
  return count;
}

}  // namespace

std::int16_t DiskObject::CopyFileCheck(TextView FromFile, TextView ToFile, bool OverwriteFile,
                                       std::int16_t /*CheckCondition*/) const {
  const auto from = StatusOf(FromFile);
  if (!from || from->is_folder) return 0;
  const auto to = StatusOf(ToFile);
  if (to && !to->is_folder) {
    if (to->read_only) Try([&] { services_.status->ClearReadOnly(ToFile); });
    if (to->last_modified == from->last_modified) return 0;
  }
  const auto existing = OverwriteFile ? ExistingTarget::kReplace : ExistingTarget::kRefuse;
  Try([&] { services_.copier->Copy(FromFile, ToFile, existing); });
  return 1;
}

std::int32_t DiskObject::XCopyFile(TextView from_file, TextView to_file) const {
  if (!IsFolder(from_file)) return 0;
  const Text from = AsFolder(from_file);
  const Text to = AsFolder(to_file);
  // Into itself, a copy would go on until no path could hold it: the same error.
  if (IsInside(to, from)) throw RunTimeError::PathFileAccess("XCopyFile", Quoted(to_file));
  const bool is_target_there = Try([&] {
    if (!IsFolder(to)) services_.folders->Create(to);
  });
  return (is_target_there ? 1 : 0) + CopyEntries(services_, from, to);
}

}  // namespace ZQ7Standard
