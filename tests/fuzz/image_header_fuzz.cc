// Any bytes have a header, which stays the same if zeros follow them.

#include "formats/image_header.h"
#include "tests/fuzz/check.h"

using namespace ZQ7Standard;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string bytes(data, data + size);
  const ImageHeader header = ReadImageHeader(bytes);
  Check(header.depth >= 0 && header.depth <= 2040 && header.width >= 0 && header.width <= 65535);
  bytes.resize(kImageHeaderSize);
  Check(ReadImageHeader(bytes) == header);
  return 0;
}
