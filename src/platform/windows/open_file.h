#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_OPEN_FILE_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_OPEN_FILE_H_

#include <ZQ7Standard/Types.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/windows/handle.h"

namespace ZQ7Standard {

/// How a file is opened: the rights to it, what becomes of one that exists or does not, and its
/// attributes if it is created. Others may always read, write, rename and delete it.
struct FileOpening {
  DWORD access = GENERIC_READ;
  DWORD disposition = OPEN_EXISTING;
  DWORD attributes = FILE_ATTRIBUTE_NORMAL;
};

/// An open file. Failures raise the run-time error of the system's, which names the path text.
class OpenFile {
 public:
  OpenFile(TextView path, std::wstring native, const FileOpening& opening);

  /// The same if the file exists and is not a folder; otherwise nullopt.
  static std::optional<OpenFile> IfThere(TextView path, std::wstring native,
                                         const FileOpening& opening);

  /// The same unless it fails with an error that is `expected`; otherwise nullopt.
  static std::optional<OpenFile> Unless(bool (*expected)(DWORD error), TextView path,
                                        std::wstring native, const FileOpening& opening);

  /// Reads once; none are the end.
  std::size_t Read(std::span<char> buffer) const;
  std::string ReadToEnd() const;
  /// Writes all of `bytes`.
  void Write(std::string_view bytes) const;
  /// Makes the file empty.
  void Truncate() const;
  /// Waits until what was written is on the disk.
  void Sync() const;
  void Close() { handle_.reset(); }

  bool IsOnDisk() const { return GetFileType(handle_.get()) == FILE_TYPE_DISK; }
  bool IsDevice() const { return GetFileType(handle_.get()) == FILE_TYPE_CHAR; }
  bool IsLink() const;
  /// Whether `native` leads to the file itself, without following a link.
  bool IsAt(const std::wstring& native) const;
  /// Raises 75 for a pipe or a device.
  void RequireDisk(std::string_view step) const;
  /// Raises 70 for a file with the read-only attribute, which the system lets some users write.
  void RequireWritable(std::string_view step) const;
  BY_HANDLE_FILE_INFORMATION Information() const;

  HANDLE Get() const { return handle_.get(); }
  const std::wstring& Native() const { return native_; }
  [[noreturn]] void Fail(DWORD error, std::string_view step) const;

 private:
  OpenFile(TextView path, std::wstring native);
  bool TryOpen(const FileOpening& opening);

  Text path_;
  std::wstring native_;
  Handle handle_;
};

/// Whether both are one file, whatever paths led to it.
bool IsSameFile(const OpenFile& a, const OpenFile& b);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_OPEN_FILE_H_
