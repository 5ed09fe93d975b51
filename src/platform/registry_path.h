#ifndef ZQ7STANDARD_SRC_PLATFORM_REGISTRY_PATH_H_
#define ZQ7STANDARD_SRC_PLATFORM_REGISTRY_PATH_H_

#include <ZQ7Standard/platform/registry.h>

#include <optional>

namespace ZQ7Standard {

/// Whether keys can be kept below `root`.
constexpr bool KeepsKeys(std::int32_t root) {
  return root >= HKEY_CLASSES_ROOT && root <= HKEY_USERS;
}

/// `path` without the "\" that may end it; nullopt when one of the names in it is
/// empty or has more than 255 characters, or there are more than 512 of them. The
/// empty path is the root itself.
std::optional<TextView> KeyPath(TextView path);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_REGISTRY_PATH_H_
