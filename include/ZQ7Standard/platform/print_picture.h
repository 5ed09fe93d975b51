#ifndef ZQ7STANDARD_PLATFORM_PRINT_PICTURE_H_
#define ZQ7STANDARD_PLATFORM_PRINT_PICTURE_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/path_text.h>

#include <memory>
#include <string_view>

namespace ZQ7Standard {

/// A picture for `PrintObject`, with its own size.
class ZQ7STANDARD_EXPORT PrintPicture {
 public:
  virtual ~PrintPicture();

  virtual float Width() = 0;   ///< The width in millimetres.
  virtual float Height() = 0;  ///< The height in millimetres.

  /// The bytes of a PNG or JPEG file, which last as long as the picture.
  virtual std::string_view Picture() = 0;
};

/// The picture of a PNG or JPEG file, named by its path text and read at once, at the
/// file's own resolution, else 96 dots per inch. Raises 53 if there is no such file, 57,
/// 70 or 75 if it cannot be read, and 5 if it is neither a PNG nor a JPEG.
ZQ7STANDARD_EXPORT std::shared_ptr<PrintPicture> PictureFromFile(TextView path,
                                                                 DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_PRINT_PICTURE_H_
