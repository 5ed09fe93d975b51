#include "platform/linux/new_file.h"

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>

#include <atomic>
#include <cstddef>
#include <optional>
#include <system_error>

#include "platform/linux/system_calls.h"

namespace ZQ7Standard {
namespace {

[[noreturn]] void Fail() {
  throw std::system_error(errno, std::generic_category());
}

/// A new file without a name; -1 if the file system does not support such files.
Descriptor OpenUnnamed(int folder, unsigned mode) {
  return Descriptor(openat(folder, ".", O_WRONLY | O_TMPFILE | O_CLOEXEC, mode));
}

/// A new file of that name; -1 if the name is taken.
Descriptor OpenNew(int folder, const std::string& name, unsigned mode) {
  Descriptor file(openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
  if (!file && errno != EEXIST) Fail();
  return file;
}

/// Writes `bytes` to the disk.
void WriteAndSync(const Descriptor& file, std::string_view bytes) {
  if (!WriteAll(kSystemCalls, file.Number(), bytes)) Fail();
  if (fsync(file.Number()) != 0) Fail();
}

/// The outcome of a system call that creates a name: whether the name was free, or nullopt if the
/// call does not work here.
std::optional<bool> WasFree(int result) {
  if (result == 0) return true;
  return errno == EEXIST ? std::optional(false) : std::nullopt;
}

/// Gives a file its first name.
std::optional<bool> Link(const Descriptor& file, int folder, const std::string& name) {
  const std::string path = "/proc/self/fd/" + std::to_string(file.Number());
  return WasFree(linkat(AT_FDCWD, path.c_str(), folder, name.c_str(), AT_SYMLINK_FOLLOW));
}

/// Gives the file `hidden` another name, by moving it if links do not work.
std::optional<bool> Rename(int folder, const std::string& hidden, const std::string& name) {
  const auto linked = WasFree(linkat(folder, hidden.c_str(), folder, name.c_str(), 0));
  if (linked) return linked;
  return WasFree(renameat2(folder, hidden.c_str(), folder, name.c_str(), RENAME_NOREPLACE));
}

}  // namespace

NewFile::NewFile(Descriptor file, int folder, std::string_view bytes, unsigned mode)
    : file_(std::move(file)), folder_(folder), bytes_(bytes), mode_(mode) {}

NewFile::NewFile(int folder, std::string_view bytes, unsigned mode)
    : NewFile(OpenUnnamed(folder, mode), folder, bytes, mode) {
  if (file_) {
    WriteAndSync(file_, bytes_);
  } else {
    WriteHidden();
  }
}

NewFile::~NewFile() {
  if (!hidden_name_.empty()) unlinkat(folder_, hidden_name_.c_str(), 0);
}

bool NewFile::TakeName(const std::string& name) {
  if (hidden_name_.empty()) {
    if (const auto linked = Link(file_, folder_, name)) return *linked;
    WriteHidden();  // without /proc an unnamed file cannot get a name
  }
  const auto renamed = Rename(folder_, hidden_name_, name);
  return renamed ? *renamed : WriteInPlace(name);
}

void NewFile::WriteHidden() {
  static std::atomic<unsigned> count = 0;
  std::string name;
  do {
    name = ".zq7-" + std::to_string(getpid()) + "-" + std::to_string(++count);
    file_ = OpenNew(folder_, name, mode_);
  } while (!file_);
  hidden_name_ = name;
  WriteAndSync(file_, bytes_);
}

/// Writes the file under its final name, if neither links nor non-replacing moves work. A kill
/// may leave it truncated.
bool NewFile::WriteInPlace(const std::string& name) const {
  const Descriptor file = OpenNew(folder_, name, mode_);
  if (!file) return false;
  try {
    WriteAndSync(file, bytes_);
  } catch (const std::system_error&) {
    unlinkat(folder_, name.c_str(), 0);
    throw;
  }
  return true;
}

}  // namespace ZQ7Standard
