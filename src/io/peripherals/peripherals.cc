#include <ZQ7Standard/PeripheralObject.h>

#include <string>
#include <utility>

#include "base/raise.h"
#include "io/failures.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

constexpr TextView kDrawerSettings = u"9600,N,8,1";
constexpr int kAutomationError = static_cast<int>(Error::kAutomationError);

/// The result for `failure`, 0 for none. Numbers wider than 16 bits have the run-time error number
/// in the lower half; if that is 0, the failure must not look like success.
std::int16_t ResultOf(const std::optional<Failure>& failure) {
  if (!failure) return 0;
  const auto low =
      static_cast<std::int16_t>(failure->error ? failure->error->number : kAutomationError);
  return low != 0 ? low : std::int16_t{kAutomationError};
}

void Transmit(SerialPort* control, TextView code, std::int16_t port, TextView settings) {
  if (control == nullptr) {
    Raise(Error::kObjectNotSet, {"SendCommMsg", "iControl"});
  }
  control->SetCommPort(port);
  control->SetSettings(settings);
  control->SetInputLen(0);
  control->SetPortOpen(true);
  control->SetOutput(code);
  control->SetPortOpen(false);
}

}  // namespace

PeripheralObject::PeripheralObject() : PeripheralObject(Services{}) {}

PeripheralObject::PeripheralObject(Services services)
    : services_(std::make_shared<ServiceSet>(std::move(services))) {}

std::int16_t PeripheralObject::SendCommMsg(const std::shared_ptr<SerialPort>& iControl,
                                           TextView iCode, std::int16_t iPort,
                                           TextView Setting) const {
  return ResultOf(FailureOf([&] { Transmit(iControl.get(), iCode, iPort, Setting); }));
}

std::int16_t PeripheralObject::OpenDraw(const std::shared_ptr<SerialPort>& iControl, TextView iCode,
                                        std::int16_t iPort) const {
  const auto failure = FailureOf([&] { Transmit(iControl.get(), iCode, iPort, kDrawerSettings); });
  if (failure) {
    const std::string text =
        "Error! : " + std::to_string(ResultOf(failure)) + "\r\n" + failure->text;
    Try([&] {
      services_->MessageBox().Show(
          {.title = u"", .text = FromUtf8(text), .icon = MessageIcon::kCritical});
    });
  }
  return 1;
}

}  // namespace ZQ7Standard
