#ifndef ZQ7STANDARD_TESTS_SUPPORT_TEMP_FOLDER_H_
#define ZQ7STANDARD_TESTS_SUPPORT_TEMP_FOLDER_H_

#include <ZQ7Standard/platform/path_text.h>

#include <random>
#include <string>

namespace ZQ7Standard {

/// A folder for a test, removed by the destructor.
class TempFolder {
 public:
  explicit TempFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path())
      : native_(parent / ("zq7." + std::to_string(std::random_device()()))) {
    std::filesystem::create_directory(native_);
    std::filesystem::permissions(native_, std::filesystem::perms::owner_all);
  }
  ~TempFolder() { std::filesystem::remove_all(native_); }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& Native() const { return native_; }
  Text Path(const std::string& name) const { return PathText(native_ / name); }

  /// The output of a shell command run in the folder. Only where there is a shell.
  std::string Run(const std::string& command) const;

 private:
  std::filesystem::path native_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_TEMP_FOLDER_H_
