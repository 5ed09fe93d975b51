#include <ZQ7Standard/platform/file_copier.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string>
#include <utility>

#include "platform/linux/native_path.h"
#include "platform/linux/open_file.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kMostAtOnce = std::size_t{1} << 30;
constexpr std::size_t kBufferSize = 65'536;

// Opens a pipe without waiting for its other end, only to reject it.
constexpr int kForReading = O_RDONLY | O_NONBLOCK;
constexpr int kForReplacing = O_WRONLY | O_NONBLOCK;

/// The status of a file, which must be a regular one: folders and devices have no content to copy.
struct stat StatusOf(const OpenFile& file) {
  struct stat status {};
  if (fstat(file.Descriptor(), &status) != 0) file.Fail(errno, "status");
  if (!S_ISREG(status.st_mode)) file.Fail(EISDIR, "copy");
  return status;
}

bool IsSameFile(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

/// Copies inside the file system as far as possible, which may be not at all, and then reads and
/// writes the rest.
void CopyContent(const OpenFile& source, const OpenFile& target) {
  while (copy_file_range(source.Descriptor(), nullptr, target.Descriptor(), nullptr, kMostAtOnce,
                         0) > 0) {
  }
  std::array<char, kBufferSize> buffer;
  while (const std::size_t count = source.Read(buffer)) target.Write({buffer.data(), count});
}

void SetLastModified(const OpenFile& file, const timespec& last_modified) {
  const std::array<timespec, 2> times = {timespec{0, UTIME_OMIT}, last_modified};
  if (futimens(file.Descriptor(), times.data()) != 0) file.Fail(errno, "set time");
}

class Copying {
 public:
  Copying(TextView from, const std::string& source)
      : source_(from, source, kForReading), status_(StatusOf(source_)) {}

  void ToNew(TextView to, const std::string& target) const {
    OpenFile file(to, target, O_WRONLY | O_CREAT | O_EXCL, status_.st_mode & ACCESSPERMS);
    try {
      Fill(file);
    } catch (...) {
      unlink(target.c_str());
      throw;
    }
  }

  /// Returns false if there is no file `target`.
  bool ToExisting(TextView to, const std::string& target) const {
    auto file = OpenFile::IfThere(to, target, kForReplacing);
    if (!file) return false;
    const struct stat status = StatusOf(*file);
    const bool is_read_only = (status.st_mode & S_IWUSR) == 0;
    if (is_read_only || IsSameFile(status, status_)) file->Fail(EACCES, "copy");
    if (ftruncate(file->Descriptor(), 0) != 0) file->Fail(errno, "copy");
    Fill(*file);
    return true;
  }

 private:
  void Fill(OpenFile& target) const {
    CopyContent(source_, target);
    SetLastModified(target, status_.st_mtim);
    target.Close();
  }

  OpenFile source_;
  struct stat status_;
};

class LinuxFileCopier final : public FileCopier {
 public:
  explicit LinuxFileCopier(DriveMap drives) : drives_(std::move(drives)) {}

  void Copy(TextView from, TextView to, ExistingTarget existing) override {
    const Copying copying(from, NativePath(from, drives_));
    const std::string target = NativePath(to, drives_);
    if (existing == ExistingTarget::kReplace && copying.ToExisting(to, target)) return;
    copying.ToNew(to, target);
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileCopier> SystemFileCopier(DriveMap drives) {
  return std::make_shared<LinuxFileCopier>(std::move(drives));
}

}  // namespace ZQ7Standard
