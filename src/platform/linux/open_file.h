#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_OPEN_FILE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_OPEN_FILE_H_

#include <ZQ7Standard/Types.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// An open file, which is closed at the end. What fails raises the run-time error of
/// its errno, which names the path text.
class OpenFile {
 public:
  /// Opens the file `native`, with the flags of open(2). A file that this makes has
  /// the rights `mode`, less the process's umask.
  OpenFile(TextView path, std::string native, int flags, unsigned mode = 0666);
  OpenFile(const OpenFile&) = delete;
  OpenFile(OpenFile&& other) noexcept;
  OpenFile& operator=(const OpenFile&) = delete;
  OpenFile& operator=(OpenFile&&) = delete;
  ~OpenFile();

  /// The same where the file is there; nothing where it is not.
  static std::optional<OpenFile> IfThere(TextView path, std::string native, int flags);

  /// Reads once. Fewer bytes than `buffer` has room for are not yet the end; none are.
  std::size_t Read(std::span<char> buffer) const;
  /// Writes all of `bytes`.
  void Write(std::string_view bytes) const;
  /// Waits until what was written is on the disk.
  void Sync() const;
  /// Closes the file; a write that the system put off may fail here.
  void Close();

  /// Whether it is a folder, which opens for reading but cannot be read.
  bool IsFolder() const;

  /// For system calls of other kinds, whose failure `Fail` raises.
  int Descriptor() const { return descriptor_; }
  [[noreturn]] void Fail(int error, std::string_view operation) const;

 private:
  OpenFile(TextView path, std::string native);

  Text path_;
  std::string native_;
  int descriptor_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_OPEN_FILE_H_
