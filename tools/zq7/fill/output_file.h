#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_OUTPUT_FILE_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_OUTPUT_FILE_H_

#include <filesystem>
#include <string>
#include <string_view>

namespace ZQ7Tool {

/// A file that appears whole or not at all: it is written beside its place, with the rights of the
/// file that it replaces, and takes its place when it is committed. If it never is, nothing is left
/// of it, also after a signal that ends the program. What is not a regular file, such as a pipe, is
/// written directly.
///
/// Failures are a `std::system_error` that names the file.
class OutputFile {
 public:
  explicit OutputFile(const std::filesystem::path& path);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  void Write(std::string_view bytes);
  void Commit();

 private:
  OutputFile() = default;
  void Create(const std::filesystem::path& name);
  [[noreturn]] void Fail() const;

  std::filesystem::path path_;       // without links
  std::filesystem::path temporary_;  // empty if there is none
  int file_ = -1;
};

/// Whether two names are the same file, "-" being standard input as the first and standard output
/// as the second. False if one of them does not exist or is no regular file.
bool IsSameFile(const std::string& input, const std::string& output);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_OUTPUT_FILE_H_
