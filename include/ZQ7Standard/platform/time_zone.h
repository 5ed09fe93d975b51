#ifndef ZQ7STANDARD_PLATFORM_TIME_ZONE_H_
#define ZQ7STANDARD_PLATFORM_TIME_ZONE_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <memory>

namespace ZQ7Standard {

/// Converts moments between the machine's local time and UTC, to the second. An hour that
/// the clocks skip counts from before the change; of one that they repeat it is the first.
class ZQ7STANDARD_EXPORT TimeZone {
 public:
  virtual ~TimeZone();

  virtual OleDate ToUtc(OleDate local) = 0;
  virtual OleDate ToLocal(OleDate utc) = 0;
};

/// The time zone of the process.
ZQ7STANDARD_EXPORT std::shared_ptr<TimeZone> SystemTimeZone();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_TIME_ZONE_H_
