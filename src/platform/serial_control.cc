#include "platform/serial_control.h"

namespace ZQ7Standard {

RunTimeError LineFailure(Error error, const std::string& device, const std::string& detail) {
  return RunTimeError(error, detail.empty() ? device : device + ": " + detail);
}

std::optional<LineMode> ReadLineMode(TextView text) {
  const auto settings = ReadSerialSettings(text);
  if (!settings || !CanBeSent(*settings)) return std::nullopt;
  return LineMode{*settings, Quoted(text)};
}

std::chrono::milliseconds TimeOnLine(std::size_t size, std::uint32_t baud) {
  // A byte takes at most 12 bits: the start, 8 of data, parity and 2 of stop.
  return std::chrono::milliseconds(std::uint64_t{size} * 12 * 1000 / baud);
}

}  // namespace ZQ7Standard
