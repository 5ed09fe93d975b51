#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_OPEN_FILE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_OPEN_FILE_H_

#include <ZQ7Standard/Types.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/linux/system_calls.h"

namespace ZQ7Standard {

/// An open file or folder, closed by the destructor. Failures raise the run-time error of their
/// errno, which names the path text.
class OpenFile {
 public:
  /// Opens the file `native`, with the flags of open(2). A created file has the rights `mode`, less
  /// the process's umask. With O_NONBLOCK a pipe or a device is not waited for.
  OpenFile(TextView path, std::string native, int flags, unsigned mode = 0666);
  OpenFile(const OpenFile&) = delete;
  OpenFile(OpenFile&& other) noexcept;
  OpenFile& operator=(const OpenFile&) = delete;
  OpenFile& operator=(OpenFile&&) = delete;
  ~OpenFile();

  /// The same if the file exists; otherwise nullopt.
  static std::optional<OpenFile> IfThere(TextView path, std::string native, int flags,
                                         const SystemCalls& calls = kSystemCalls);

  // For the contents of an open folder. Failures name the folder's path text, and a name that
  // begins with "/" leaves the folder.

  /// Opens `name`.
  OpenFile Open(const std::string& name, int flags, unsigned mode = 0666) const;
  /// The same; nullopt if it fails with an errno that is `expected`.
  std::optional<OpenFile> OpenUnless(bool (*expected)(int error), const std::string& name,
                                     int flags) const;
  /// The status of `name` itself, not of a link's target; nullopt if there is none.
  std::optional<struct stat> StatusOf(const std::string& name) const;

  /// Reads once. Fewer bytes than `buffer` holds are not yet the end; none are.
  std::size_t Read(std::span<char> buffer) const;
  /// Reads a file with that status from start to end.
  std::string ReadToEnd(const struct stat& status) const;
  /// Writes all of `bytes`.
  void Write(std::string_view bytes) const;
  /// Waits until what was written is on the disk.
  void Sync() const;
  /// Closes the file; a deferred write may fail here.
  void Close();

  struct stat Status() const;

  /// For other system calls, whose failures `Fail` raises.
  int Descriptor() const { return descriptor_; }
  const SystemCalls& Calls() const { return *calls_; }
  [[noreturn]] void Fail(int error, std::string_view step) const;

 private:
  OpenFile(TextView path, std::string native, const SystemCalls& calls);
  bool TryOpen(int folder, const std::string& name, int flags, unsigned mode);

  Text path_;
  std::string native_;
  const SystemCalls* calls_;
  int descriptor_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_OPEN_FILE_H_
