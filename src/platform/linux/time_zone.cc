#include <ZQ7Standard/platform/time_zone.h>
#include <time.h>

namespace ZQ7Standard {
namespace {

constexpr int kFirstTmYear = 1900;

OleDate DateOf(const tm& parts) {
  return OleDate::FromParts(parts.tm_year + kFirstTmYear, parts.tm_mon + 1, parts.tm_mday,
                            parts.tm_hour, parts.tm_min, parts.tm_sec > 59 ? 59 : parts.tm_sec);
}

tm PartsOf(OleDate date) {
  tm parts{};
  parts.tm_year = date.Year() - kFirstTmYear;
  parts.tm_mon = date.Month() - 1;
  parts.tm_mday = date.Day();
  parts.tm_hour = date.Hour();
  parts.tm_min = date.Minute();
  parts.tm_sec = date.Second();
  parts.tm_isdst = -1;
  return parts;
}

class LinuxTimeZone final : public TimeZone {
 public:
  OleDate ToUtc(OleDate local) override {
    tm parts = PartsOf(local);
    const time_t moment = mktime(&parts);
    tm utc{};
    gmtime_r(&moment, &utc);
    return DateOf(utc);
  }

  OleDate ToLocal(OleDate utc) override {
    tm parts = PartsOf(utc);
    const time_t moment = timegm(&parts);
    tm local{};
    localtime_r(&moment, &local);
    return DateOf(local);
  }
};

}  // namespace

std::shared_ptr<TimeZone> SystemTimeZone() {
  return std::make_shared<LinuxTimeZone>();
}

}  // namespace ZQ7Standard
