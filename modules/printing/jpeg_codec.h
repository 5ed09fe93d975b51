#ifndef ZQ7STANDARD_MODULES_PRINTING_JPEG_CODEC_H_
#define ZQ7STANDARD_MODULES_PRINTING_JPEG_CODEC_H_

#include <string>
#include <string_view>

#include "printing/pixels.h"

namespace ZQ7Standard {

/// The picture of a JPEG file. Raises 481 if the file is damaged or ends early.
Pixels JpegPixels(std::string_view file);

/// What an encoder is told besides the pixels.
struct JpegSettings {
  int quality = 75;          ///< 1 to 100
  int columns_per_inch = 0;  ///< from 1
  int rows_per_inch = 0;     ///< from 1
};

/// A JPEG file with these pixels.
std::string JpegFile(const Pixels& pixels, const JpegSettings& settings);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_JPEG_CODEC_H_
