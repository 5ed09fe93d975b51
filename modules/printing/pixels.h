#ifndef ZQ7STANDARD_MODULES_PRINTING_PIXELS_H_
#define ZQ7STANDARD_MODULES_PRINTING_PIXELS_H_

#include <cstddef>
#include <string_view>
#include <vector>

namespace ZQ7Standard {

/// A decoded picture.
struct Pixels {
  std::size_t columns = 0;
  std::size_t rows = 0;
  std::vector<unsigned char> rgb = {};  ///< three bytes for each pixel, row by row
};

/// The picture of a PNG file, transparent parts on white. Raises 481 if the file is damaged.
Pixels PngPixels(std::string_view file);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_PIXELS_H_
