#include "platform/linux/environment.h"

#include <cstdlib>

namespace ZQ7Standard {

std::filesystem::path FolderFromEnvironment(const char* variable) {
  const char* const value = secure_getenv(variable);
  const std::filesystem::path folder = value == nullptr ? "" : value;
  return folder.is_absolute() ? folder : std::filesystem::path();
}

}  // namespace ZQ7Standard
