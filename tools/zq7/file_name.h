#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILE_NAME_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILE_NAME_H_

#include <filesystem>
#include <string>

namespace ZQ7Tool {

/// The path that a name of the command line, in UTF-8, means on every system.
inline std::filesystem::path FileNamed(const std::string& name) {
  return std::u8string(name.begin(), name.end());
}

/// The name of a path in UTF-8.
inline std::string NameOf(const std::filesystem::path& path) {
  const std::u8string name = path.u8string();
  return {name.begin(), name.end()};
}

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILE_NAME_H_
