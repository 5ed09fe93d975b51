#ifndef ZQ7STANDARD_SRC_FORMATS_IMAGE_HEADER_H_
#define ZQ7STANDARD_SRC_FORMATS_IMAGE_HEADER_H_

#include <ZQ7Standard/Enumerations.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ZQ7Standard {

/// How many bytes of a file are read.
inline constexpr std::size_t kImageHeaderSize = 65'536;

/// What the start of an image file says. Sizes are in pixels.
struct ImageHeader {
  eImageType type = itUNKNOWN;
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::int32_t depth = 0;  ///< bits per pixel, [0, 2040]

  friend bool operator==(const ImageHeader&, const ImageHeader&) = default;
};

/// Reads the header of a file that starts with `bytes`, at most `kImageHeaderSize` of them; a
/// truncated header reads as if zeros followed.
ImageHeader ReadImageHeader(std::string_view bytes);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_IMAGE_HEADER_H_
