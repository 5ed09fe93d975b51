#ifndef ZQ7STANDARD_TESTS_SUPPORT_READ_ONLY_H_
#define ZQ7STANDARD_TESTS_SUPPORT_READ_ONLY_H_

#include <filesystem>
#include <utility>

namespace ZQ7Standard {

/// Makes a file or folder read-only for the system, or not.
void SetReadOnly(const std::filesystem::path& path, bool read_only);

bool IsReadOnly(const std::filesystem::path& path);

/// A file or folder that is read-only until the end of a test.
class ReadOnly {
 public:
  explicit ReadOnly(std::filesystem::path path) : path_(std::move(path)) {
    SetReadOnly(path_, true);
  }
  ~ReadOnly() { SetReadOnly(path_, false); }
  ReadOnly(const ReadOnly&) = delete;
  ReadOnly& operator=(const ReadOnly&) = delete;

 private:
  std::filesystem::path path_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_READ_ONLY_H_
