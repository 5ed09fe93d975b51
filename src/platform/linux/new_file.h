#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_NEW_FILE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_NEW_FILE_H_

#include <filesystem>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// Writes `bytes` to a file "`stem``extension`" in `folder`, " (2)" and so on behind
/// the stem where there is one. It is there whole or not at all, and takes the place
/// of no other. Raises a `std::system_error`.
void WriteNewFile(const std::filesystem::path& folder, const std::string& stem,
                  const std::string& extension, std::string_view bytes);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_NEW_FILE_H_
