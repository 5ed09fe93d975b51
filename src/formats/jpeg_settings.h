#ifndef ZQ7STANDARD_SRC_FORMATS_JPEG_SETTINGS_H_
#define ZQ7STANDARD_SRC_FORMATS_JPEG_SETTINGS_H_

#include <string_view>

#include "formats/picture_size.h"

namespace ZQ7Standard {

/// What an encoder is told besides the pixels.
struct JpegSettings {
  int quality = 75;          ///< 1 to 100
  int columns_per_inch = 0;  ///< from 1
  int rows_per_inch = 0;     ///< from 1
};

/// Reads the size of a PNG or JPEG file that is to become a JPEG file. Raises 481 if it is neither,
/// or has more pixels than `PictureEncoder` takes.
PictureSize SizeForJpeg(std::string_view picture);

/// The settings that keep the density of a picture.
JpegSettings JpegSettingsFor(const PictureSize& size, int quality);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_JPEG_SETTINGS_H_
