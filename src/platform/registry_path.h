#ifndef ZQ7STANDARD_SRC_PLATFORM_REGISTRY_PATH_H_
#define ZQ7STANDARD_SRC_PLATFORM_REGISTRY_PATH_H_

#include <ZQ7Standard/platform/registry.h>

#include <optional>

namespace ZQ7Standard {

/// Whether there can be keys below `root`.
bool KeepsKeys(std::int32_t root);

/// `path` without a trailing "\"; nullopt if it has an empty name, one of more than 255 characters,
/// or more than 512 names. The empty path is the root itself.
std::optional<TextView> KeyPath(TextView path);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_REGISTRY_PATH_H_
