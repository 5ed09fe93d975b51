#include "drawer.h"

#include <ZQ7Standard/PeripheralObject.h>
#include <ZQ7Standard/platform/serial_port.h>
#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <system_error>

#include "remark.h"

namespace InvoiceDemo {
namespace {

using namespace std::literals;
using ZQ7Standard::PeripheralObject;

constexpr std::int16_t kPort = 1;
constexpr auto kKick = u"\x1Bp\0\x19\u0E5A"sv;  // the bytes 27 112 0 25 250

/// A line whose other end is the device "at `Name()`".
class PseudoTerminal {
 public:
  PseudoTerminal() : end_(posix_openpt(O_RDWR | O_NOCTTY)) {
    if (end_ < 0 || grantpt(end_) != 0 || unlockpt(end_) != 0) {
      throw std::system_error(errno, std::generic_category(), "no pseudo-terminal");
    }
  }
  ~PseudoTerminal() { close(end_); }
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  std::string Name() const { return ptsname(end_); }

  /// The bytes that are there.
  std::string Read() const {
    pollfd ready = {.fd = end_, .events = POLLIN, .revents = 0};
    if (poll(&ready, 1, 0) <= 0 || (ready.revents & POLLIN) == 0) return {};
    std::array<char, 64> bytes;
    const ssize_t count = read(end_, bytes.data(), bytes.size());
    return count > 0 ? std::string(bytes.data(), static_cast<std::size_t>(count)) : std::string();
  }

 private:
  int end_;
};

std::string Decimals(std::string_view bytes) {
  std::string decimals;
  for (const char byte : bytes) {
    if (!decimals.empty()) decimals += ' ';
    decimals += std::to_string(static_cast<unsigned char>(byte));
  }
  return decimals;
}

}  // namespace

std::string KickDrawer() {
  const PseudoTerminal drawer;
  const auto port = ZQ7Standard::SystemSerialPort({{kPort, drawer.Name()}});
  const auto remark = std::make_shared<Remark>();
  const PeripheralObject devices({.message_box = remark});
  devices.OpenDraw(port, kKick, kPort);
  remark->ThrowIfAny("the drawer stays shut");
  const std::string bytes = drawer.Read();
  if (bytes.empty()) throw std::runtime_error("the drawer stays shut: nothing arrived");
  return Decimals(bytes);
}

}  // namespace InvoiceDemo
