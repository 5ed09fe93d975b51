// Any bytes are a picture with a size, or not a picture.

#include "formats/picture_size.h"
#include "tests/fuzz/check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The first byte chooses the start of the file.
  std::string file = size > 0 && data[0] % 2 != 0 ? "\x89PNG\r\n\x1A\n" : "\xFF\xD8";
  const auto read = ZQ7Standard::ReadPictureSize(file.append(data, data + size));
  ZQ7Standard::Check(!read || (read->columns > 0 && read->rows > 0));
  ZQ7Standard::Check(!read || (read->columns_per_mm > 0 && read->rows_per_mm > 0));
  return 0;
}
