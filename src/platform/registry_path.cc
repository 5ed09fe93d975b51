#include "platform/registry_path.h"

namespace ZQ7Standard {

std::optional<TextView> KeyPath(TextView path) {
  const bool empty_name = path.starts_with(u'\\') || path.find(u"\\\\") != TextView::npos;
  if (empty_name) return std::nullopt;
  if (path.ends_with(u'\\')) path.remove_suffix(1);
  return path;
}

}  // namespace ZQ7Standard
