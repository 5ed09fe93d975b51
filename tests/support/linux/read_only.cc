#include "tests/support/read_only.h"

namespace ZQ7Standard {

void SetReadOnly(const std::filesystem::path& path, bool read_only) {
  using std::filesystem::perm_options;
  permissions(path, std::filesystem::perms::owner_write,
              read_only ? perm_options::remove : perm_options::add);
}

bool IsReadOnly(const std::filesystem::path& path) {
  using std::filesystem::perms;
  return (status(path).permissions() & perms::owner_write) == perms::none;
}

}  // namespace ZQ7Standard
