#include "platform/linux/file_place.h"

#include <fcntl.h>
#include <limits.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

#include "platform/linux/file_errors.h"

namespace ZQ7Standard {
namespace {

constexpr int kMostLinks = 40;  // the system's own limit
constexpr int kFolder = O_PATH | O_DIRECTORY;
constexpr int kLinkItself = O_PATH | O_NOFOLLOW;

/// Where the name begins in `native`.
std::size_t NameStart(const std::string& native) {
  return native.rfind('/') + 1;  // 0 when there is no "/"
}

std::string FolderOf(const std::string& native) {
  return native.substr(0, NameStart(native)) + '.';
}

std::string NameOf(const std::string& native) {
  const std::string name = native.substr(NameStart(native));
  return name.empty() ? "." : name;
}

/// Whether a user without rights to the folder may have put the link there.
bool IsStrangersLink(const struct stat& link, const struct stat& folder) {
  constexpr mode_t kOpenToAll = S_ISVTX | S_IWOTH;
  return (folder.st_mode & kOpenToAll) == kOpenToAll && link.st_uid != folder.st_uid &&
         link.st_uid != geteuid();
}

/// The target of the link `name` in `folder`.
std::string LinkIn(const OpenFile& folder, const std::string& name) {
  const OpenFile link = folder.Open(name, kLinkItself);
  if (IsStrangersLink(link.Status(), folder.Status())) folder.Fail(EACCES, "follow");
  std::array<char, PATH_MAX> target;
  const ssize_t size =
      folder.Calls().readlinkat(link.Descriptor(), "", target.data(), target.size());
  if (size < 0) folder.Fail(errno, "follow");
  return {target.data(), static_cast<std::size_t>(size)};
}

/// The place of `native`, whose folder is `folder`.
std::optional<FilePlace> PlaceIn(std::optional<OpenFile> folder, const std::string& native,
                                 int links) {
  if (!folder || links > kMostLinks) return std::nullopt;
  const std::string name = NameOf(native);
  const auto status = folder->StatusOf(name);
  if (!status || !S_ISLNK(status->st_mode)) return FilePlace{std::move(*folder), name, status};
  const std::string target = LinkIn(*folder, name);
  return PlaceIn(folder->OpenUnless(MeansMissing, FolderOf(target), kFolder), target, links + 1);
}

}  // namespace

std::optional<FilePlace> FindPlace(TextView path, const std::string& native,
                                   const SystemCalls& calls) {
  return PlaceIn(OpenFile::IfThere(path, FolderOf(native), kFolder, calls), native, 0);
}

void SyncFolder(const FilePlace& place) {
  const auto folder = place.folder.OpenUnless(MeansDenied, ".", O_RDONLY | O_DIRECTORY);
  if (folder) folder->Sync();
}

}  // namespace ZQ7Standard
