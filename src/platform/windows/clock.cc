#include <ZQ7Standard/platform/clock.h>
#include <windows.h>

#include "platform/windows/system_time.h"

namespace ZQ7Standard {
namespace {

class WindowsClock final : public Clock {
 public:
  OleDate Now() override {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return DateOf(now);
  }
};

}  // namespace

std::shared_ptr<Clock> SystemClock() {
  return std::make_shared<WindowsClock>();
}

}  // namespace ZQ7Standard
