#ifndef ZQ7STANDARD_SRC_FORMATS_PICTURE_SIZE_H_
#define ZQ7STANDARD_SRC_FORMATS_PICTURE_SIZE_H_

#include <cstdint>
#include <optional>
#include <string_view>

namespace ZQ7Standard {

enum class PictureFormat { kPng, kJpeg };

/// What the header of a picture file says.
struct PictureSize {
  PictureFormat format = PictureFormat::kPng;
  std::uint32_t columns = 0;  ///< pixels, from 1
  std::uint32_t rows = 0;     ///< pixels, from 1
  double columns_per_mm = 0;  ///< above 0
  double rows_per_mm = 0;     ///< above 0

  friend bool operator==(const PictureSize&, const PictureSize&) = default;
};

/// Reads the header of a PNG (RFC 2083) or JPEG (ITU T.81, with the density of JFIF) file with the
/// bytes `file`; nullopt if it is neither. Without a resolution, 96 dots per inch are assumed.
std::optional<PictureSize> ReadPictureSize(std::string_view file);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_PICTURE_SIZE_H_
