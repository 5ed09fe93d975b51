// Any bytes have a version or none, which takes few and small reads.

#include "formats/file_version.h"
#include "tests/fuzz/check.h"

using namespace ZQ7Standard;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  int reads = 0;
  ReadFileVersion([&](std::uint64_t offset, std::size_t wanted) {
    Check(++reads <= 12 && wanted <= 65'536);
    return offset < bytes.size() ? bytes.substr(offset, wanted) : std::string();
  });
  return 0;
}
