#ifndef ZQ7STANDARD_MODULES_PRINTING_JPEG_CODEC_H_
#define ZQ7STANDARD_MODULES_PRINTING_JPEG_CODEC_H_

#include <string>
#include <string_view>

#include "formats/jpeg_settings.h"
#include "printing/pixels.h"

namespace ZQ7Standard {

/// The picture of a JPEG file. Raises 481 if the file is damaged or ends early.
Pixels JpegPixels(std::string_view file);

/// A JPEG file with these pixels.
std::string JpegFile(const Pixels& pixels, const JpegSettings& settings);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_JPEG_CODEC_H_
