#include "platform/linux/open_file.h"

#include <fcntl.h>

#include <cerrno>
#include <utility>

#include "platform/linux/file_errors.h"

namespace ZQ7Standard {
namespace {

constexpr int kClosed = -1;

}  // namespace

OpenFile::OpenFile(TextView path, std::string native, const SystemCalls& calls)
    : path_(path), native_(std::move(native)), calls_(&calls), descriptor_(kClosed) {}

OpenFile::OpenFile(TextView path, std::string native, int flags, unsigned mode)
    : OpenFile(path, std::move(native), kSystemCalls) {
  if (!TryOpen(AT_FDCWD, native_, flags, mode)) Fail(errno, "open");
}

OpenFile::OpenFile(OpenFile&& other) noexcept
    : path_(std::move(other.path_)),
      native_(std::move(other.native_)),
      calls_(other.calls_),
      descriptor_(std::exchange(other.descriptor_, kClosed)) {}

OpenFile::~OpenFile() {
  if (descriptor_ != kClosed) calls_->close(descriptor_);
}

/// Returns false and sets errno on failure.
bool OpenFile::TryOpen(int folder, const std::string& name, int flags, unsigned mode) {
  const auto open = [&](int wait) {
    return calls_->openat(folder, name.c_str(), (flags & ~wait) | O_CLOEXEC | O_NOCTTY, mode);
  };
  descriptor_ = Uninterrupted([&] { return open(0); });
  // A file leased to a process, which gives up the lease when asked to.
  if (descriptor_ == kClosed && errno == EWOULDBLOCK) {
    descriptor_ = Uninterrupted([&] { return open(O_NONBLOCK); });
  }
  return descriptor_ != kClosed;
}

std::optional<OpenFile> OpenFile::IfThere(TextView path, std::string native, int flags,
                                          const SystemCalls& calls) {
  OpenFile file(path, std::move(native), calls);
  if (file.TryOpen(AT_FDCWD, file.native_, flags, 0)) return file;
  if (!MeansMissing(errno)) file.Fail(errno, "open");
  return std::nullopt;
}

OpenFile OpenFile::Open(const std::string& name, int flags, unsigned mode) const {
  OpenFile file(path_, native_, *calls_);
  if (!file.TryOpen(descriptor_, name, flags, mode)) Fail(errno, "open");
  return file;
}

std::optional<OpenFile> OpenFile::OpenUnless(bool (*expected)(int error), const std::string& name,
                                             int flags) const {
  OpenFile file(path_, native_, *calls_);
  if (file.TryOpen(descriptor_, name, flags, 0)) return file;
  if (!expected(errno)) Fail(errno, "open");
  return std::nullopt;
}

std::optional<struct stat> OpenFile::StatusOf(const std::string& name) const {
  struct stat status {};
  if (calls_->fstatat(descriptor_, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) return status;
  if (!MeansMissing(errno)) Fail(errno, "status");
  return std::nullopt;
}

std::size_t OpenFile::Read(std::span<char> buffer) const {
  const ssize_t count =
      Uninterrupted([&] { return calls_->read(descriptor_, buffer.data(), buffer.size()); });
  if (count < 0) Fail(errno, "read");
  return static_cast<std::size_t>(count);
}

std::string OpenFile::ReadToEnd(const struct stat& status) const {
  constexpr std::size_t kSizeUnknown = 65535;  // as in /proc
  const auto expected = static_cast<std::size_t>(status.st_size);
  // One byte more than expected shows where the end is.
  std::string bytes((expected > 0 ? expected : kSizeUnknown) + 1, '\0');
  std::size_t size = 0;
  while (const std::size_t count = Read(std::span(bytes).subspan(size))) {
    size += count;
    if (size == expected) break;
    if (size == bytes.size()) bytes.resize(2 * size);
  }
  bytes.resize(size);
  return bytes;
}

void OpenFile::Write(std::string_view bytes) const {
  if (!WriteAll(*calls_, descriptor_, bytes)) Fail(errno, "write");
}

void OpenFile::Sync() const {
  // Some file systems cannot sync a folder and say so with EINVAL.
  if (Uninterrupted([this] { return calls_->fsync(descriptor_); }) != 0 && errno != EINVAL) {
    Fail(errno, "sync");
  }
}

void OpenFile::Close() {
  // An interrupted close has closed the file.
  if (calls_->close(std::exchange(descriptor_, kClosed)) != 0 && errno != EINTR) {
    Fail(errno, "close");
  }
}

struct stat OpenFile::Status() const {
  struct stat status {};
  if (calls_->fstat(descriptor_, &status) != 0) Fail(errno, "status");
  return status;
}

void OpenFile::Fail(int error, std::string_view step) const {
  throw FileError(error, step, path_, native_);
}

}  // namespace ZQ7Standard
