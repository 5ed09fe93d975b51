#include "platform/linux/new_file.h"

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <unistd.h>

#include <atomic>
#include <cstddef>
#include <system_error>

namespace ZQ7Standard {
namespace {

[[noreturn]] void Fail(const std::filesystem::path& path) {
  throw std::system_error(errno, std::generic_category(), path.string());
}

/// A file under a name that nobody looks for, gone with the object.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::filesystem::path& folder) {
    static std::atomic<unsigned> count = 0;
    do {
      const std::string name = std::to_string(getpid()) + "-" + std::to_string(++count);
      path_ = (folder / (".zq7-" + name)).string();
      file_ = open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (file_ < 0 && errno == EEXIST);
    if (file_ < 0) Fail(path_);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    close(file_);
    unlink(path_.c_str());
  }

  /// Puts `bytes` on the disk.
  void Write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t written = write(file_, bytes.data(), bytes.size());
      if (written < 0 && errno != EINTR) Fail(path_);
      if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    if (fsync(file_) != 0) Fail(path_);
  }

  /// Gives the file the name `path`; false when there is one of that name.
  bool MoveTo(const std::filesystem::path& path) const {
    if (link(path_.c_str(), path.c_str()) == 0) return true;
    if (errno == EEXIST) return false;
    // A file system without links.
    if (renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, path.c_str(), RENAME_NOREPLACE) == 0) {
      return true;
    }
    if (errno != EEXIST) Fail(path);
    return false;
  }

 private:
  std::string path_;
  int file_ = -1;
};

}  // namespace

void WriteNewFile(const std::filesystem::path& folder, const std::string& stem,
                  const std::string& extension, std::string_view bytes) {
  const TemporaryFile file(folder);
  file.Write(bytes);
  std::string name = stem + extension;
  for (int number = 2; !file.MoveTo(folder / name); ++number) {
    name = stem;
    name.append(" (").append(std::to_string(number)).append(")").append(extension);
  }
}

}  // namespace ZQ7Standard
