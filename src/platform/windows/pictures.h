#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PICTURES_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PICTURES_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ZQ7Standard {

/// A decoded picture as GDI takes it: rows from the top, each of whole 32-bit words, with three
/// bytes for each pixel, blue first. What was transparent is white.
struct Bitmap {
  static constexpr std::size_t kPixelSize = 3;

  std::size_t RowSize() const { return (columns * kPixelSize + 3) / 4 * 4; }

  std::size_t columns = 0;
  std::size_t rows = 0;
  std::vector<unsigned char> bytes = {};
};

/// Decodes a PNG or JPEG file. Raises 481 if the file is neither, is damaged or has more pixels
/// than `PictureEncoder` takes, and 429 if the system has no decoder.
Bitmap DecodePicture(std::string_view file);

/// The picture of a PNG or JPEG file as a JPEG file, as `PictureEncoder::ToJpeg` says.
std::string PictureAsJpeg(std::string_view picture, int quality);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PICTURES_H_
