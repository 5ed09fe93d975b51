#ifndef ZQ7STANDARD_PLATFORM_SERIAL_PORT_H_
#define ZQ7STANDARD_PLATFORM_SERIAL_PORT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <chrono>
#include <cstdint>
#include <memory>

namespace ZQ7Standard {

/// A serial line, for the operations of `PeripheralObject`.
///
/// A communications control: one serial line, chosen, set up, opened, written to and
/// closed by setting its properties in that order. A host may bring its own. A
/// property that cannot be set raises a `RunTimeError` whose number and text reach
/// the user.
class ZQ7STANDARD_EXPORT SerialPort {
 public:
  virtual ~SerialPort();

  /// The number of the port, from 1.
  virtual void SetCommPort(std::int16_t port) = 0;
  /// Baud, parity, data bits and stop bits.
  ///
  /// Such as "9600,N,8,1".
  virtual void SetSettings(TextView settings) = 0;
  /// How many characters one read returns.
  ///
  /// 0 means all that have arrived.
  virtual void SetInputLen(std::int16_t length) = 0;
  /// Opens or closes the port.
  virtual void SetPortOpen(bool open) = 0;
  /// The text to write.
  ///
  /// Writes `text` to the open port.
  virtual void SetOutput(TextView text) = 0;

  /// Whether the port is open.
  virtual bool PortOpen() const = 0;
};

/// A serial line of the operating system. Port n is `devices[n]`, or /dev/ttyS(n-1) if
/// the map has no n. Until set, it is port 1 with "9600,N,8,1". An instance belongs to
/// one thread at a time; its destructor closes the port.
///
/// Settings are read strictly: a usual speed from 50 to 4000000, parity N, E, O, M or S
/// in either case, 4 to 8 data bits, 1, 1.5 or 2 stop bits, and no blanks. Port number
/// and settings take effect at the next opening. `InputLen` does nothing, as nothing is
/// read.
///
/// The open port is without handshake, and locked: no other instance or program can open
/// it. `Output` goes out in the library's code page, other characters as "?", without
/// framing. It returns when the last byte has left, or raises if that takes `time_limit`
/// (a day at most) longer than the line itself needs; bytes still waiting are then
/// discarded, so that a drawer does not open later. Closing restores the line's former
/// settings, and does nothing to a closed port.
///
/// On Windows port n is COMn if the map has no n, and entries are such names too; a port that
/// the user has no right to raises 8005 like one that is open, which the system does not
/// tell apart.
///
/// Raises, with the device in the text:
/// - 70 if the user has no right to the device;
/// - 380 for settings that cannot be read, or that the line cannot do (4 data bits; 1.5
///   stop bits except with 5 data bits, and 2 with 5; what the driver refuses on
///   opening);
/// - 8002 on opening, if there is no such serial line;
/// - 8005 on opening, if the port is open already, here or elsewhere;
/// - 8018 on writing, if the port is not open;
/// - 8020 if writing failed or timed out. The port stays open.
ZQ7STANDARD_EXPORT std::shared_ptr<SerialPort> SystemSerialPort(
    SerialDevices devices = {}, std::chrono::milliseconds time_limit = std::chrono::seconds(5));

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_SERIAL_PORT_H_
