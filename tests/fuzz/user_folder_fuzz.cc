// The folders that any settings name are absolute.

#include "formats/shell_value.h"
#include "tests/fuzz/check.h"

using namespace ZQ7Standard;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  for (const char* const home : {"/home/a", "/"}) {
    const auto folder = UserFolder(bytes, "DESKTOP", home);
    Check(!folder || folder->starts_with('/'));
  }
  const auto value = ShellValue(bytes);
  Check(!value || value->size() <= bytes.size());
  return 0;
}
