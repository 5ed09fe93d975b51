#ifndef ZQ7STANDARD_SRC_FORMATS_SERIAL_SETTINGS_H_
#define ZQ7STANDARD_SRC_FORMATS_SERIAL_SETTINGS_H_

#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <optional>

namespace ZQ7Standard {

enum class Parity : std::uint8_t { kNone, kOdd, kEven, kMark, kSpace };

enum class StopBits : std::uint8_t { kOne, kOneAndHalf, kTwo };

/// How a serial line sends characters.
struct SerialSettings {
  std::uint32_t baud = 9600;
  Parity parity = Parity::kNone;
  int data_bits = 8;  // 4 to 8
  StopBits stop_bits = StopBits::kOne;
};

/// Reads baud, parity, data bits and stop bits from a text such as "9600,N,8,1", the letter in
/// either case. Returns nullopt for any other text: a device set up by a guess prints rubbish or
/// keeps its drawer shut.
std::optional<SerialSettings> ReadSerialSettings(TextView text);

/// Whether serial hardware can send so: its only long stop bit is 1.5 with 5 data bits and 2 with
/// more, of which there are no fewer.
bool CanBeSent(const SerialSettings& settings);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_SERIAL_SETTINGS_H_
