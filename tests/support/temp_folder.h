#ifndef ZQ7STANDARD_TESTS_SUPPORT_TEMP_FOLDER_H_
#define ZQ7STANDARD_TESTS_SUPPORT_TEMP_FOLDER_H_

#include <ZQ7Standard/platform/path_text.h>
#include <stdio.h>
#include <stdlib.h>

#include <string>

namespace ZQ7Standard {

/// A folder for a test, removed by the destructor.
class TempFolder {
 public:
  explicit TempFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path())
      : native_(mkdtemp((parent / "zq7.XXXXXX").string().data())) {}
  ~TempFolder() { std::filesystem::remove_all(native_); }

  const std::filesystem::path& Native() const { return native_; }
  Text Path(const std::string& name) const { return PathText(native_ / name); }

  /// The output of a shell command run in the folder.
  std::string Run(const std::string& command) const {
    std::string output;
    FILE* pipe = popen(("cd " + native_.native() + "\n" + command).c_str(), "r");
    for (int c = fgetc(pipe); c != EOF; c = fgetc(pipe)) output.push_back(static_cast<char>(c));
    pclose(pipe);
    return output;
  }

 private:
  std::filesystem::path native_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_TEMP_FOLDER_H_
