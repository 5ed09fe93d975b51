#ifndef ZQ7STANDARD_TESTS_SUPPORT_TEMP_FOLDER_H_
#define ZQ7STANDARD_TESTS_SUPPORT_TEMP_FOLDER_H_

#include <ZQ7Standard/platform/path_text.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace ZQ7Standard {

/// A folder of a test's own, which is gone at its end.
class TempFolder {
 public:
  TempFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "zq7.XXXXXX").native();
    native_ = mkdtemp(name.data());
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() { std::filesystem::remove_all(native_); }

  std::filesystem::path Native(const std::string& name) const { return native_ / name; }
  /// The path text of a file or folder in it.
  Text Path(const std::string& name) const { return PathText(Native(name)); }

  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(Native(name), std::ios::binary) << bytes;
  }
  std::string Read(const std::string& name) const {
    std::ifstream file(Native(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

 private:
  std::filesystem::path native_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_TEMP_FOLDER_H_
