#include <ZQ7Standard/platform/file_rewrite.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/linux/file_errors.h"
#include "platform/linux/native_path.h"
#include "platform/linux/open_file.h"

namespace ZQ7Standard {
namespace {

/// The file that a rewrite of `native` replaces: where that is a symbolic link, what it
/// names.
std::string TargetOf(std::string native) {
  std::error_code error;
  if (!std::filesystem::is_symlink(native, error)) return native;
  const auto target = std::filesystem::canonical(native, error);
  return error ? native : target.native();
}

/// Makes `temporary` anew, for nobody else to read yet. What stands there under its
/// name is thrown away and not followed, whoever left it and however it is protected.
OpenFile MakeTemporary(TextView path, const std::string& temporary) {
  constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL;
  constexpr unsigned kOwnerOnly = S_IRUSR | S_IWUSR;
  unlink(temporary.c_str());
  return {path, temporary, kFlags, kOwnerOnly};
}

/// The rights that a file keeps when it comes to a group that is not its old one: what
/// only that group could do, the new one cannot.
mode_t ForOtherGroup(mode_t mode) {
  const mode_t everyone = mode & S_IRWXO;
  return (mode & ~static_cast<mode_t>(S_IRWXG)) | (everyone << 3U & mode);
}

/// Gives the temporary file the owner, group and rights of its target, and its owner
/// the right to write. A user who may not give files away keeps it.
void TakeRights(const OpenFile& temporary, const struct stat& target) {
  constexpr auto kSameOwner = static_cast<uid_t>(-1);
  mode_t mode = (target.st_mode & ACCESSPERMS) | S_IWUSR;
  const int file = temporary.Descriptor();
  if (fchown(file, target.st_uid, target.st_gid) != 0 &&
      fchown(file, kSameOwner, target.st_gid) != 0) {
    mode = ForOtherGroup(mode);
  }
  if (fchmod(file, mode) != 0) temporary.Fail(errno, "set rights");
}

class LinuxFileRewrite final : public FileRewrite {
 public:
  LinuxFileRewrite(TextView path, std::string target)
      : path_(path),
        target_(std::move(target)),
        target_status_(StatusOfTarget()),
        temporary_(MakeTemporary(path, Temporary())) {
    TakeRights(temporary_, target_status_);
  }

  void Write(std::string_view bytes) override { temporary_.Write(bytes); }

  void Sync() override { temporary_.Sync(); }

  void Close() override { temporary_.Close(); }

  void Replace() override {
    if (std::rename(Temporary().c_str(), target_.c_str()) != 0) Fail(errno, "rename");
  }

  void SyncFolder() override {
    const std::filesystem::path folder = std::filesystem::path(target_).parent_path();
    OpenFile(path_, folder.empty() ? "." : folder.native(), O_RDONLY | O_DIRECTORY).Sync();
  }

 private:
  std::string Temporary() const { return target_ + "$$$$"; }

  /// Only a regular file is replaced: a device or a pipe would be gone.
  struct stat StatusOfTarget() const {
    struct stat status {};
    if (stat(target_.c_str(), &status) != 0) Fail(errno, "open");
    if (!S_ISREG(status.st_mode)) Fail(EINVAL, "rewrite");
    return status;
  }

  [[noreturn]] void Fail(int error, std::string_view operation) const {
    throw FileError(error, operation, path_, target_);
  }

  Text path_;
  std::string target_;
  struct stat target_status_;
  OpenFile temporary_;
};

class LinuxFileRewriter final : public FileRewriter {
 public:
  explicit LinuxFileRewriter(DriveMap drives) : drives_(std::move(drives)) {}

  std::unique_ptr<FileRewrite> Begin(TextView path) override {
    return std::make_unique<LinuxFileRewrite>(path, TargetOf(NativePath(path, drives_)));
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileRewriter> SystemFileRewriter(DriveMap drives) {
  return std::make_shared<LinuxFileRewriter>(std::move(drives));
}

}  // namespace ZQ7Standard
