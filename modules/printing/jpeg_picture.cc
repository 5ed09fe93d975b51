#include "printing/jpeg_picture.h"

#include "printing/jpeg_codec.h"
#include "printing/pixels.h"

namespace ZQ7Standard {

std::string PictureAsJpeg(std::string_view picture, int quality) {
  const PictureSize size = SizeForJpeg(picture);
  const Pixels pixels =
      size.format == PictureFormat::kPng ? PngPixels(picture) : JpegPixels(picture);
  return JpegFile(pixels, JpegSettingsFor(size, quality));
}

}  // namespace ZQ7Standard
