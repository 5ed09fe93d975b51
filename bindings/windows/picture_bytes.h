#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_PICTURE_BYTES_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_PICTURE_BYTES_H_

#include <string>

#include "com.h"

/// Pictures of the system as the bytes of PNG files. What cannot be read raises 481.
namespace ZQ7Windows {

std::string BitmapBytes(HBITMAP bitmap);
/// A bitmap or an icon; other kinds raise 481.
std::string PictureBytes(IPicture& picture);

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_PICTURE_BYTES_H_
