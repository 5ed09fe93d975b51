#include <ZQ7Standard/PeripheralObject.h>
#include <ZQ7Standard/RunTimeError.h>

#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace ZQ7Standard {
namespace {

constexpr TextView kDrawerSettings = u"9600,N,8,1";
constexpr int kObjectNotSet = 91;
constexpr int kAutomationError = 440;

/// What stopped a sending; the number is 0 when nothing did.
struct Failure {
  std::int16_t number = 0;
  std::string description;
};

/// Numbers wider than 16 bits carry the run-time error number in the lower half. One
/// that has nothing there may not pass for success.
Failure FailureOf(int number, std::string_view description) {
  const auto low = static_cast<std::int16_t>(number);
  return {low != 0 ? low : std::int16_t{kAutomationError}, std::string(description)};
}

void Transmit(SerialPort* control, TextView code, std::int16_t port, TextView settings) {
  if (control == nullptr) {
    throw RunTimeError(kObjectNotSet, "SendCommMsg: object variable not set (error 91): iControl");
  }
  control->SetCommPort(port);
  control->SetSettings(settings);
  control->SetInputLen(0);
  control->SetPortOpen(true);
  control->SetOutput(code);
  control->SetPortOpen(false);
}

/// `Transmit` with whatever a host's control may raise made into a result.
Failure TryTransmit(SerialPort* control, TextView code, std::int16_t port, TextView settings) {
  try {
    Transmit(control, code, port, settings);
    return {};
  } catch (const RunTimeError& error) {
    return FailureOf(error.Number(), error.what());
  } catch (const std::exception& error) {
    return FailureOf(kAutomationError, error.what());
  } catch (...) {
    return FailureOf(kAutomationError, "SendCommMsg: automation error (error 440): iControl");
  }
}

}  // namespace

PeripheralObject::PeripheralObject() : PeripheralObject(PeripheralServices{}) {}

PeripheralObject::PeripheralObject(PeripheralServices services) : services_(std::move(services)) {
  if (!services_.message_box) services_.message_box = ErrorStreamMessageBox();
}

std::int16_t PeripheralObject::SendCommMsg(const std::shared_ptr<SerialPort>& iControl,
                                           TextView iCode, std::int16_t iPort,
                                           TextView Setting) const {
  return TryTransmit(iControl.get(), iCode, iPort, Setting).number;
}

std::int16_t PeripheralObject::OpenDraw(const std::shared_ptr<SerialPort>& iControl, TextView iCode,
                                        std::int16_t iPort) const {
  const auto [number, description] = TryTransmit(iControl.get(), iCode, iPort, kDrawerSettings);
  if (number != 0) {
    const std::string text = "Error! : " + std::to_string(number) + "\r\n" + description;
    services_.message_box->Show(
        {.title = u"", .text = FromUtf8(text), .icon = MessageIcon::kCritical});
  }
  return 1;
}

}  // namespace ZQ7Standard
