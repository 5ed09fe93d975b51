#ifndef ZQ7STANDARD_PLATFORM_PICTURE_ENCODER_H_
#define ZQ7STANDARD_PLATFORM_PICTURE_ENCODER_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <memory>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// Writes pictures anew in another format.
class ZQ7STANDARD_EXPORT PictureEncoder {
 public:
  virtual ~PictureEncoder();

  /// The bytes of a JPEG file with the picture of a PNG or JPEG file: its pixels and its
  /// density, nothing else; what is transparent becomes white. `quality` is from 1 to 100.
  /// Raises 481 if the file is damaged, has a side of more than 65,500 pixels or more than
  /// 100 million in all, 429 if the machine has no encoder.
  virtual std::string ToJpeg(std::string_view picture, int quality) = 0;
};

/// The encoder of the printing module, or on Windows of the system.
ZQ7STANDARD_EXPORT std::shared_ptr<PictureEncoder> SystemPictureEncoder();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_PICTURE_ENCODER_H_
