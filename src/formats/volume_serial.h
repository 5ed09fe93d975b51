#ifndef ZQ7STANDARD_SRC_FORMATS_VOLUME_SERIAL_H_
#define ZQ7STANDARD_SRC_FORMATS_VOLUME_SERIAL_H_

#include <ZQ7Standard/Types.h>

#include <string_view>

namespace ZQ7Standard {

/// The serial number of a volume, eight hexadecimal digits in upper case, by the identifier in its
/// file system; empty if that has no digits.
///
/// FAT's ("1A2B-3C4D") is the serial number itself, NTFS's (16 digits) ends with it. Any other is
/// taken as words of eight digits, whose exclusive or it is.
Text VolumeSerial(std::string_view identifier);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_VOLUME_SERIAL_H_
