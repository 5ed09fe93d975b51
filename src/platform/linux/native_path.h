#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_NATIVE_PATH_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_NATIVE_PATH_H_

#include <ZQ7Standard/platform/path_text.h>

#include <string>

namespace ZQ7Standard {

/// The native path, in UTF-8, of a path text: the drive letter and colon are replaced by the
/// drive's folder if `drives` has one, otherwise dropped, and "\" by "/". A drive alone is its
/// folder, or else the root; ".." never leads out of a drive in `drives`. What no name can hold
/// (U+0000, half a surrogate pair) becomes U+FFFD.
std::string NativePath(TextView path, const DriveMap& drives);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_NATIVE_PATH_H_
