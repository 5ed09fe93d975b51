#ifndef ZQ7STANDARD_MODULES_PRINTING_JPEG_PICTURE_H_
#define ZQ7STANDARD_MODULES_PRINTING_JPEG_PICTURE_H_

#include <string>
#include <string_view>

namespace ZQ7Standard {

/// The picture of a PNG or JPEG file as a JPEG file, as `PictureEncoder::ToJpeg` says.
std::string PictureAsJpeg(std::string_view picture, int quality);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_JPEG_PICTURE_H_
