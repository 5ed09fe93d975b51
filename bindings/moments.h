#ifndef ZQ7STANDARD_BINDINGS_MOMENTS_H_
#define ZQ7STANDARD_BINDINGS_MOMENTS_H_

#include <ZQ7Standard/Types.h>

#include <chrono>
#include <cstdint>

/// Dates for languages whose own count microseconds.
namespace ZQ7Bindings {

inline constexpr std::int64_t kDayMicroseconds = 86'400'000'000;

/// A day and the microseconds since its midnight.
struct Moment {
  std::chrono::local_days day;
  std::int64_t microseconds;
};

/// The day count of a moment, of any year.
double DayCount(const Moment& moment);

/// The moment of a date. A day count of today has steps of 0.6 microseconds, one of the year 9999
/// steps of 40: so the roundest time that has this very count is meant.
Moment MomentOf(ZQ7Standard::OleDate date);

/// Microseconds since the midnight that begins `epoch`, as a moment and back.
Moment MomentAt(std::int64_t microseconds, std::chrono::local_days epoch);
std::int64_t MicrosecondsSince(std::chrono::local_days epoch, const Moment& moment);

}  // namespace ZQ7Bindings

#endif  // ZQ7STANDARD_BINDINGS_MOMENTS_H_
