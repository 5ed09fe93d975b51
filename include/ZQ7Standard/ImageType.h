#ifndef ZQ7STANDARD_IMAGETYPE_H_
#define ZQ7STANDARD_IMAGETYPE_H_

#include <cstdint>

namespace ZQ7Standard {

/// The kind of an image file.
enum eImageType : std::int32_t {
  itUNKNOWN = 0,  ///< none of the others
  itGIF = 1,
  itJPEG = 2,
  itPNG = 3,
  itBMP = 4,
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_IMAGETYPE_H_
