#ifndef ZQ7STANDARD_PLATFORM_TIME_TEXT_H_
#define ZQ7STANDARD_PLATFORM_TIME_TEXT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <memory>

namespace ZQ7Standard {

/// Writes the time of day as the user of a machine reads it.
class ZQ7STANDARD_EXPORT TimeTextSource {
 public:
  virtual ~TimeTextSource();

  /// The time of day with its seconds: "9:05:07 AM".
  virtual Text LongTime(OleDate moment) = 0;
};

/// The time format of the locale that LC_ALL, else LC_TIME, else LANG names: "09:05:07
/// AM" for en_US, "09:05:07" if that locale is not installed. An object belongs to one
/// thread.
ZQ7STANDARD_EXPORT std::shared_ptr<TimeTextSource> SystemTimeText();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_TIME_TEXT_H_
