#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/serial_port.h>
#include <asm/termbits.h>  // like <termios.h>, with speeds as plain numbers
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/serial_control.h"

namespace ZQ7Standard {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

std::string SystemText(int error) {
  return std::generic_category().message(error);
}

RunTimeError OpenFailure(const std::string& device, int error) {
  const std::string reason = SystemText(error);
  switch (error) {
    case EACCES:
    case EPERM:
      return LineFailure(Error::kPermissionDenied, device, reason);
    case EAGAIN:
    case EBUSY:
      return LineFailure(Error::kPortAlreadyOpen, device, reason);
    default:
      return LineFailure(Error::kNoSuchPort, device, reason);
  }
}

constexpr tcflag_t kFormFlags = CSIZE | CSTOPB | PARENB | PARODD | CMSPAR;

/// The system's flags for the form of a character. Its only flag for a long stop bit means 1.5 with
/// 5 data bits and 2 with more.
tcflag_t FormFlags(const SerialSettings& settings) {
  constexpr std::array<tcflag_t, 4> kSizes = {CS5, CS6, CS7, CS8};
  constexpr std::array<tcflag_t, 5> kParities = {0, PARENB | PARODD, PARENB,
                                                 PARENB | PARODD | CMSPAR, PARENB | CMSPAR};
  const tcflag_t form = kSizes[static_cast<std::size_t>(settings.data_bits - 5)] |
                        kParities[static_cast<std::size_t>(settings.parity)];
  return settings.stop_bits == StopBits::kOne ? form : form | CSTOPB;
}

/// Whether a driver asked for `settings` has set the line up as `line`. A speed within 2 % is what
/// other devices tolerate, and as close as most hardware gets.
bool IsSetUp(const termios2& line, const SerialSettings& settings) {
  const speed_t baud = settings.baud;
  const auto difference = std::max(line.c_ospeed, baud) - std::min(line.c_ospeed, baud);
  return (line.c_cflag & kFormFlags) == FormFlags(settings) && difference <= baud / 50;
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  int Number() const { return number_; }

 private:
  int number_;
};

/// A serial line of the machine, open and locked. On closing it gets back its original settings.
class Line {
 public:
  static std::string DeviceOf(std::int16_t port) { return "/dev/ttyS" + std::to_string(port - 1); }

  explicit Line(std::string device)
      : device_(std::move(device)),
        descriptor_(open(device_.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
    if (Number() < 0 || ioctl(Number(), TCGETS2, &former_) < 0) throw OpenFailure(device_, errno);
    Lock();
  }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;
  ~Line() {
    ioctl(Number(), TCSETS2, &former_);
    ioctl(Number(), TIOCNXCL);  // a pseudo-terminal would stay locked
  }

  /// Sets the line up for raw bytes.
  void SetUp(const LineMode& mode) {
    termios2 line = former_;
    line.c_iflag = IGNBRK | IGNPAR;
    line.c_oflag = 0;
    line.c_lflag = 0;
    line.c_cflag &= ~(kFormFlags | CBAUD | CIBAUD | CRTSCTS);
    line.c_cflag |= FormFlags(mode.settings) | BOTHER | CLOCAL | CREAD;
    line.c_ispeed = mode.settings.baud;
    line.c_ospeed = mode.settings.baud;
    if (ioctl(Number(), TCSETS2, &line) < 0 || ioctl(Number(), TCGETS2, &line) < 0 ||
        !IsSetUp(line, mode.settings)) {
      throw LineFailure(Error::kInvalidPropertyValue, device_, mode.text);
    }
    baud_ = mode.settings.baud;
  }

  /// Writes `bytes` within the time that they need on the line plus `time_limit`.
  void Write(std::string_view bytes, milliseconds time_limit) {
    const auto deadline = steady_clock::now() + TimeOnLine(bytes.size(), baud_) + time_limit;
    int error = Send(bytes, deadline);
    if (error == 0) error = Drain(deadline);
    if (error == 0) return;
    ioctl(Number(), TCFLSH, TCOFLUSH);
    throw LineFailure(Error::kWriteFailed, device_, SystemText(error));
  }

  const std::string& Device() const { return device_; }

 private:
  int Number() const { return descriptor_.Number(); }

  /// Two locks keep everyone out: the system refuses the device to other programs, and root, which
  /// it refuses nothing, finds the mark or the file lock.
  void Lock() {
    int exclusive = 0;
    if (flock(Number(), LOCK_EX | LOCK_NB) < 0 ||
        (ioctl(Number(), TIOCGEXCL, &exclusive) == 0 && exclusive != 0)) {
      throw LineFailure(Error::kPortAlreadyOpen, device_);
    }
    ioctl(Number(), TIOCEXCL);
  }

  /// Passes `bytes` to the driver, all at once if it has room. Returns 0 or the error of the
  /// system, ETIME after the deadline.
  int Send(std::string_view bytes, steady_clock::time_point deadline) const {
    while (true) {
      const ssize_t written = write(Number(), bytes.data(), bytes.size());
      if (written < 0 && errno != EAGAIN && errno != EINTR) return errno;
      if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
      if (bytes.empty()) return 0;
      const auto left = std::chrono::ceil<milliseconds>(deadline - steady_clock::now());
      if (left <= milliseconds(0)) return ETIME;
      pollfd room = {.fd = Number(), .events = POLLOUT, .revents = 0};
      poll(&room, 1, static_cast<int>(left.count()));
    }
  }

  /// Waits until the last byte has left the line; same results as `Send`. The system's own wait has
  /// no deadline, so it is used only for what the hardware holds.
  int Drain(steady_clock::time_point deadline) const {
    for (int waiting = 0;; std::this_thread::sleep_for(milliseconds(1))) {
      if (ioctl(Number(), TIOCOUTQ, &waiting) < 0) return errno;
      if (waiting == 0) break;
      if (steady_clock::now() >= deadline) return ETIME;
    }
    while (ioctl(Number(), TCSBRK, 1) < 0) {
      if (errno != EINTR) return errno;
    }
    return 0;
  }

  std::string device_;
  Descriptor descriptor_;
  termios2 former_{};
  speed_t baud_ = 0;
};

}  // namespace

std::shared_ptr<SerialPort> SystemSerialPort(SerialDevices devices, milliseconds time_limit) {
  return std::make_shared<SerialControl<Line>>(std::move(devices), time_limit);
}

}  // namespace ZQ7Standard
