#include "platform/registry_path.h"

#include "base/fields.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kLongestName = 255;
constexpr std::size_t kMostLevels = 512;

}  // namespace

bool KeepsKeys(std::int32_t root) {
  return root >= HKEY_CLASSES_ROOT && root <= HKEY_USERS;
}

std::optional<TextView> KeyPath(TextView path) {
  std::size_t levels = 0;
  for (TextView rest = path; !rest.empty(); ++levels) {
    const TextView name = TakeField(rest, u'\\');
    if (name.empty() || name.size() > kLongestName || levels == kMostLevels) return std::nullopt;
  }
  if (path.ends_with(u'\\')) path.remove_suffix(1);
  return path;
}

}  // namespace ZQ7Standard
