#include <ZQ7Standard/platform/folders.h>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <utility>

#include "base/raise.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/native_path.h"

namespace ZQ7Standard {
namespace {

struct CloseFolder {
  void operator()(DIR* folder) const { closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

/// The folder that `path` names, starting at the open folder `start`; nullopt if it is not one.
std::optional<FolderIdentity> IdentityOf(int start, const char* path) {
  struct stat status {};
  if (fstatat(start, path, &status, 0) != 0 || !S_ISDIR(status.st_mode)) return std::nullopt;
  return FolderIdentity{status.st_dev, status.st_ino};
}

std::optional<FolderIdentity> IdentityOf(const OpenFolder& folder, const dirent& entry) {
  const bool is_file =
      entry.d_type != DT_DIR && entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN;
  return is_file ? std::nullopt : IdentityOf(dirfd(folder.get()), entry.d_name);
}

/// `native` without the names at its end that do not lead to a folder.
std::string WayToNearest(std::string native) {
  while (!IdentityOf(AT_FDCWD, native.c_str())) {
    native.erase(native.find_last_not_of('/') + 1);
    const std::size_t slash = native.rfind('/');
    if (slash == std::string::npos) return ".";
    native.erase(slash + 1);
  }
  return native;
}

Text NameText(std::string_view name, TextView folder) {
  Text text = FromUtf8(name);
  if (text.find(u'\\') != Text::npos || Utf8(text) != name) {
    Raise(Error::kPathFileAccess, {}, Text(folder) + text, "list");
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
      entries.push_back({NameText(name, path), IdentityOf(folder, *entry)});
    }
    if (errno != 0) throw FileError(errno, "list", path, native);
    return entries;
  }

  std::vector<FolderIdentity> Enclosing(TextView path) override {
    std::vector<FolderIdentity> enclosing;
    std::string way = WayToNearest(NativePath(path, drives_));
    // Ends at the root, which is its own "..", or at a folder that the user may not leave.
    for (auto folder = IdentityOf(AT_FDCWD, way.c_str());
         folder && (enclosing.empty() || *folder != enclosing.back());
         folder = IdentityOf(AT_FDCWD, (way += "/..").c_str())) {
      enclosing.push_back(*folder);
    }
    return enclosing;
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<Folders> SystemFolders(DriveMap drives) {
  return std::make_shared<LinuxFolders>(std::move(drives));
}

}  // namespace ZQ7Standard
