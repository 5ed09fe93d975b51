#ifndef ZQ7STANDARD_CIMAGEINFO_H_
#define ZQ7STANDARD_CIMAGEINFO_H_

#include <ZQ7Standard/Enumerations.h>
#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <memory>

namespace ZQ7Standard {

class ServiceSet;

/// The kind, size and colour depth of an image file.
///
/// Read from its first 65,536 bytes without decoding the image: GIF, JPEG, PNG and BMP.
///
/// The properties describe the last file read; before the first and after an error
/// all four are 0. An instance belongs to one thread at a time; distinct instances
/// are independent.
//
// The operations are defined in src/io/images/image_info.cc.
class ZQ7STANDARD_EXPORT CImageInfo {
 public:
  /// Uses the machine's files.
  CImageInfo();
  /// Uses the host's services.
  explicit CImageInfo(Services services);

  /// Reads a file and sets the properties from it.
  ///
  /// `sFileName` is a full path; it is read in one go. Unknown content is not a
  /// failure: `ImageType` is `itUNKNOWN` and the rest 0. A file that does not exist is
  /// created empty, and is unknown too.
  ///
  /// Sizes have 16 bits: a PNG 70,000 pixels wide has the `Width` 4,464, and a BMP
  /// stored top down the `Height` 65,536 less its own. The frame header of a JPEG
  /// is looked for in the first 65,525 bytes. A PNG with a palette has the depth 8,
  /// however few bits it stores.
  ///
  /// Raises 6 for a depth beyond 255 bits (a JPEG of 32 components), 76 if there is no
  /// such folder, 70 for a file that may not be both read and written (a read-only one
  /// whoever asks), and 75 for a folder, a pipe or a device.
  void ReadImageInfo(TextView sFileName);

  std::int32_t Width() const { return width_; }         ///< The width in pixels.
  std::int32_t Height() const { return height_; }       ///< The height in pixels.
  std::uint8_t Depth() const { return depth_; }         ///< Bits per pixel.
  eImageType ImageType() const { return image_type_; }  ///< The kind of file.

 private:
  std::shared_ptr<ServiceSet> services_;
  std::int32_t width_ = 0;
  std::int32_t height_ = 0;
  std::uint8_t depth_ = 0;
  eImageType image_type_ = itUNKNOWN;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_CIMAGEINFO_H_
