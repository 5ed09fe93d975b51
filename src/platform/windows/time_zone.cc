#include <ZQ7Standard/platform/time_zone.h>
#include <windows.h>

#include "platform/windows/system_time.h"

namespace ZQ7Standard {
namespace {

/// The system knows the rules of time zones from 1601 only; a date before that keeps the standard
/// offset of the zone.
OleDate ByStandardOffset(OleDate moment, double direction) {
  constexpr double kMinutesOfDay = 1440;
  TIME_ZONE_INFORMATION zone{};
  GetTimeZoneInformation(&zone);
  return OleDate(moment.Days() + direction * static_cast<double>(zone.Bias) / kMinutesOfDay);
}

class WindowsTimeZone final : public TimeZone {
 public:
  OleDate ToUtc(OleDate local) override {
    const SYSTEMTIME given = SystemTimeOf(local);
    SYSTEMTIME utc{};
    if (TzSpecificLocalTimeToSystemTime(nullptr, &given, &utc) == 0) {
      return ByStandardOffset(local, 1);
    }
    return DateOf(utc);
  }

  OleDate ToLocal(OleDate utc) override {
    const SYSTEMTIME given = SystemTimeOf(utc);
    SYSTEMTIME local{};
    if (SystemTimeToTzSpecificLocalTime(nullptr, &given, &local) == 0) {
      return ByStandardOffset(utc, -1);
    }
    return DateOf(local);
  }
};

}  // namespace

std::shared_ptr<TimeZone> SystemTimeZone() {
  return std::make_shared<WindowsTimeZone>();
}

}  // namespace ZQ7Standard
