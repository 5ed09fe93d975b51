#include <ZQ7Standard/platform/clock.h>
#include <time.h>

#include <algorithm>
#include <chrono>

namespace ZQ7Standard {
namespace {

class LinuxClock final : public Clock {
 public:
  OleDate Now() override {
    const time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    tm local{};
    localtime_r(&now, &local);
    // A leap second counts as the second before it.
    return OleDate::FromParts(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                              local.tm_min, std::min(local.tm_sec, 59));
  }
};

}  // namespace

std::shared_ptr<Clock> SystemClock() {
  return std::make_shared<LinuxClock>();
}

}  // namespace ZQ7Standard
