#include "platform/linux/open_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/linux/file_errors.h"

namespace ZQ7Standard {
namespace {

constexpr int kClosed = -1;

/// The result of a system call, made again while signals interrupt it.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

int Open(const std::string& native, int flags, unsigned mode) {
  return Uninterrupted([&] { return open(native.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode); });
}

}  // namespace

OpenFile::OpenFile(TextView path, std::string native)
    : path_(path), native_(std::move(native)), descriptor_(kClosed) {}

OpenFile::OpenFile(TextView path, std::string native, int flags, unsigned mode)
    : OpenFile(path, std::move(native)) {
  descriptor_ = Open(native_, flags, mode);
  if (descriptor_ == kClosed) Fail(errno, "open");
}

OpenFile::OpenFile(OpenFile&& other) noexcept
    : path_(std::move(other.path_)),
      native_(std::move(other.native_)),
      descriptor_(std::exchange(other.descriptor_, kClosed)) {}

OpenFile::~OpenFile() {
  if (descriptor_ != kClosed) close(descriptor_);
}

std::optional<OpenFile> OpenFile::IfThere(TextView path, std::string native, int flags) {
  OpenFile file(path, std::move(native));
  file.descriptor_ = Open(file.native_, flags, 0);
  if (file.descriptor_ != kClosed) return file;
  if (!MeansMissing(errno)) file.Fail(errno, "open");
  return std::nullopt;
}

std::size_t OpenFile::Read(std::span<char> buffer) const {
  const ssize_t count =
      Uninterrupted([&] { return read(descriptor_, buffer.data(), buffer.size()); });
  if (count < 0) Fail(errno, "read");
  return static_cast<std::size_t>(count);
}

void OpenFile::Write(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t count =
        Uninterrupted([&] { return write(descriptor_, bytes.data(), bytes.size()); });
    if (count < 0) Fail(errno, "write");
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void OpenFile::Sync() const {
  // Some file systems cannot sync a folder, and say so by EINVAL.
  if (Uninterrupted([this] { return fsync(descriptor_); }) != 0 && errno != EINVAL) {
    Fail(errno, "sync");
  }
}

void OpenFile::Close() {
  // An interrupted close has closed the file.
  if (close(std::exchange(descriptor_, kClosed)) != 0 && errno != EINTR) Fail(errno, "close");
}

bool OpenFile::IsFolder() const {
  struct stat status {};
  return fstat(descriptor_, &status) == 0 && S_ISDIR(status.st_mode);
}

void OpenFile::Fail(int error, std::string_view operation) const {
  throw FileError(error, operation, path_, native_);
}

}  // namespace ZQ7Standard
