// Services of Windows that are still to be written.
#include <ZQ7Standard/platform/desktop.h>
#include <ZQ7Standard/platform/time_servers.h>

#include "base/raise.h"

namespace ZQ7Standard {
namespace {

[[noreturn]] void NotYet() {
  throw RunTimeError(Error::kCannotCreateObject, "not on Windows yet");
}

}  // namespace

std::shared_ptr<Desktop> SystemDesktop(DriveMap /*drives*/) {
  NotYet();
}
std::shared_ptr<TimeServers> SystemTimeServers() {
  NotYet();
}

}  // namespace ZQ7Standard
