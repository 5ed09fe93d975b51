#include <ZQ7Standard/platform/folders.h>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <utility>

#include "platform/linux/file_errors.h"
#include "platform/linux/native_path.h"
#include "text/unicode.h"

namespace ZQ7Standard {
namespace {

struct CloseFolder {
  void operator()(DIR* folder) const { closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

bool IsFolder(const OpenFolder& folder, const dirent& entry) {
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return entry.d_type == DT_DIR;
  struct stat status {};
  return fstatat(dirfd(folder.get()), entry.d_name, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

Text NameText(std::string_view name, TextView folder) {
  Text text = FromUtf8(name);
  if (text.find(u'\\') != Text::npos || Utf8(text) != name) {
    throw RunTimeError::PathFileAccess("list", Quoted(Text(folder) + text));
  }
  return text;
}

class LinuxFolders final : public Folders {
 public:
  explicit LinuxFolders(DriveMap drives) : drives_(std::move(drives)) {}

  void Create(TextView path) override {
    const std::string native = NativePath(path, drives_);
    if (mkdir(native.c_str(), ACCESSPERMS) != 0) throw FileError(errno, "create", path, native);
  }

  std::vector<FolderEntry> List(TextView path) override {
    const std::string native = NativePath(path, drives_);
    const OpenFolder folder(opendir(native.c_str()));
    if (!folder) throw FileError(errno, "list", path, native);
    std::vector<FolderEntry> entries;
    for (errno = 0; const dirent* entry = readdir(folder.get()); errno = 0) {
      const std::string_view name = entry->d_name;
      if (name == "." || name == "..") continue;
      entries.push_back({NameText(name, path), IsFolder(folder, *entry)});
    }
    if (errno != 0) throw FileError(errno, "list", path, native);
    return entries;
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<Folders> SystemFolders(DriveMap drives) {
  return std::make_shared<LinuxFolders>(std::move(drives));
}

}  // namespace ZQ7Standard
