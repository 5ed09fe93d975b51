#ifndef ZQ7STANDARD_SRC_FORMATS_FILE_VERSION_H_
#define ZQ7STANDARD_SRC_FORMATS_FILE_VERSION_H_

#include <ZQ7Standard/Types.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace ZQ7Standard {

/// Reads `size` bytes of a file from `offset`; fewer if the file ends before.
using ReadAt = std::function<std::string(std::uint64_t offset, std::size_t size)>;

/// The four numbers of a version.
using FileVersion = std::array<std::uint16_t, 4>;

/// The version in the resources of a program or library of Windows (Portable Executable), the same
/// in every language. Returns nullopt for any other file. A few pieces of the file are read, of
/// 64 KiB at most.
std::optional<FileVersion> ReadFileVersion(const ReadAt& read);

/// "1.2.3.4".
Text VersionText(const FileVersion& version);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_FILE_VERSION_H_
