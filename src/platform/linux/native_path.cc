#include "platform/linux/native_path.h"

#include <algorithm>

#include "base/ascii.h"

namespace ZQ7Standard {
namespace {

bool BeginsWithDrive(TextView path) {
  return path.size() >= 2 && path[1] == u':' && IsAsciiLetter(path[0]);
}

std::string Slashed(TextView path) {
  std::string native = Utf8(path);
  std::ranges::replace(native, '\\', '/');
  for (auto at = native.find('\0'); at != std::string::npos; at = native.find('\0', at)) {
    native.replace(at, 1, "\uFFFD");
  }
  return native;
}

/// `path` on a drive with ".." resolved. As in the root folder, ".." in the drive's own folder
/// stays there.
std::string OnDrive(const std::string& path) {
  // Only ".." leads out, and `path` may be each prefix of a long chain of folders.
  if (path.find("..") == std::string::npos) return path.starts_with('/') ? path : '/' + path;
  return std::filesystem::path('/' + path).lexically_normal();
}

}  // namespace

std::string NativePath(TextView path, const DriveMap& drives) {
  if (!BeginsWithDrive(path)) return Slashed(path);
  const std::string native = Slashed(path.substr(2));
  const auto drive = drives.find(static_cast<char>(AsciiUpper(path[0])));
  if (drive != drives.end()) return drive->second.native() + OnDrive(native);
  return native.empty() ? "/" : native;
}

Text PathText(const std::filesystem::path& path) {
  Text text = u"C:" + FromUtf8(path.native());
  std::ranges::replace(text, u'/', u'\\');
  return text;
}

}  // namespace ZQ7Standard
