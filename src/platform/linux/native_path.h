#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_NATIVE_PATH_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_NATIVE_PATH_H_

#include <ZQ7Standard/platform/path_text.h>

#include <string>

namespace ZQ7Standard {

/// The native path, in UTF-8, of a path text: without the drive letter and its colon,
/// which give the way to the drive's folder where `drives` has one, and with "/" for
/// "\". A drive alone is its folder, the root where it has none; no ".." leads out of a
/// drive that `drives` has. What no name can hold (U+0000, half a surrogate pair) becomes
/// U+FFFD.
std::string NativePath(TextView path, const DriveMap& drives);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_NATIVE_PATH_H_
