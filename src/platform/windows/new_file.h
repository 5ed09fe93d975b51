#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_NEW_FILE_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_NEW_FILE_H_

#include <string>
#include <string_view>

#include "platform/windows/open_file.h"

namespace ZQ7Standard {

/// A file under a temporary name that holds its bytes, on the disk, and is deleted unless it is
/// kept. What had the name before is replaced.
class TemporaryFile {
 public:
  /// `path` is the path text of the file that it is to become, for errors.
  TemporaryFile(TextView path, std::wstring native, std::string_view bytes);
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile();

  const std::wstring& Native() const { return file_.Native(); }
  /// It has got another name, or is all that is left of the file.
  void Keep() { is_kept_ = true; }
  [[noreturn]] void Fail(DWORD error, std::string_view step) const { file_.Fail(error, step); }

 private:
  OpenFile file_;
  bool is_kept_ = false;
};

/// Creates the file `native` of `bytes`, whole or not at all. Returns false, and changes nothing,
/// if the name is taken.
bool CreateWhole(TextView path, const std::wstring& native, std::string_view bytes);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_NEW_FILE_H_
