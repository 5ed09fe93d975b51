#ifndef ZQ7STANDARD_PERIPHERALOBJECT_H_
#define ZQ7STANDARD_PERIPHERALOBJECT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/serial_port.h>

#include <cstdint>
#include <memory>

namespace ZQ7Standard {

class ServiceSet;

/// Commands to devices on a serial line, such as a cash drawer.
///
/// The host owns the control of the line and passes it to each call. An instance belongs
/// to one thread at a time; distinct instances are independent.
class ZQ7STANDARD_EXPORT PeripheralObject {
 public:
  /// Shows its messages on the error stream.
  PeripheralObject();
  explicit PeripheralObject(Services services);

  // --- Devices on a serial line: src/io/peripherals/peripherals.cc; docs/devices.md ---

  /// Sends a text to a device; 0, or the error number.
  ///
  /// Opens port `iPort` of `iControl` with the line settings `Setting`, writes `iCode` as
  /// it is and closes the port. Returns 0, or the error number of the first step that
  /// failed: the low 16 bits of the control's own number, or 440 if those are 0 or the
  /// control raised something without a number; 91 without a control. Never raises.
  ///
  /// The steps after the failed one are skipped: a port that could not be written to
  /// stays open, for the host to close.
  std::int16_t SendCommMsg(const std::shared_ptr<SerialPort>& iControl, TextView iCode,
                           std::int16_t iPort, TextView Setting = u"9600,N,8,1") const;

  /// Opens a cash drawer; always 1.
  ///
  /// Sends its kick code `iCode` with the settings "9600,N,8,1". Callers have come to
  /// rely on the 1. A failure is shown only in a message box: "Error! : ", the number of
  /// `SendCommMsg`, and on the next line the text of the control.
  std::int16_t OpenDraw(const std::shared_ptr<SerialPort>& iControl, TextView iCode,
                        std::int16_t iPort) const;

 private:
  std::shared_ptr<ServiceSet> services_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PERIPHERALOBJECT_H_
