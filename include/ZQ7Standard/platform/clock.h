#ifndef ZQ7STANDARD_PLATFORM_CLOCK_H_
#define ZQ7STANDARD_PLATFORM_CLOCK_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <memory>

namespace ZQ7Standard {

/// The wall clock that tells the date operations today's date. A host may give its own to
/// run at another date; it is then called on the thread of the operation.
class ZQ7STANDARD_EXPORT Clock {
 public:
  virtual ~Clock();

  /// The local date and time of day.
  virtual OleDate Now() = 0;
};

/// The machine's clock in the time zone of the process. A host that changes TZ
/// while it runs calls tzset() itself.
ZQ7STANDARD_EXPORT std::shared_ptr<Clock> SystemClock();

/// A clock that always shows `now`.
ZQ7STANDARD_EXPORT std::shared_ptr<Clock> FixedClock(OleDate now);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_CLOCK_H_
