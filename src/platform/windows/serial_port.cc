#include <ZQ7Standard/platform/serial_port.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

#include "platform/serial_control.h"
#include "platform/windows/handle.h"
#include "platform/windows/system_text.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// How long a driver may take to give a write up before it is cancelled.
constexpr milliseconds kTimeToGiveUp{500};

constexpr auto kParities =
    std::to_array<BYTE>({NOPARITY, ODDPARITY, EVENPARITY, MARKPARITY, SPACEPARITY});
constexpr auto kStopBits = std::to_array<BYTE>({ONESTOPBIT, ONE5STOPBITS, TWOSTOPBITS});

/// The device's name, in the space of names where ports of two digits are found too.
std::wstring NativeName(const std::string& device) {
  const std::wstring name = Wide(FromUtf8(device));
  return name.starts_with(LR"(\\)") ? name : LR"(\\.\)" + name;
}

RunTimeError OpenFailure(const std::string& device, DWORD error) {
  // A port that is open is reported as a denied access.
  const bool is_taken =
      error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION || error == ERROR_BUSY;
  return LineFailure(is_taken ? Error::kPortAlreadyOpen : Error::kNoSuchPort, device,
                     SystemText(error));
}

bool IsSetUp(const DCB& line, const DCB& asked) {
  return line.BaudRate == asked.BaudRate && line.ByteSize == asked.ByteSize &&
         line.Parity == asked.Parity && line.StopBits == asked.StopBits;
}

/// A serial line of the machine, which the system opens once. On closing it gets back its original
/// settings.
class Line {
 public:
  static std::string DeviceOf(std::int16_t port) { return "COM" + std::to_string(port); }

  explicit Line(std::string device)
      : device_(std::move(device)),
        handle_(FileHandle(CreateFileW(NativeName(device_).c_str(), GENERIC_READ | GENERIC_WRITE, 0,
                                       nullptr, OPEN_EXISTING, FILE_FLAG_OVERLAPPED, nullptr))),
        written_(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
    former_.DCBlength = sizeof former_;
    if (!handle_ || GetCommState(Get(), &former_) == 0 ||
        GetCommTimeouts(Get(), &former_limits_) == 0) {
      throw OpenFailure(device_, GetLastError());
    }
  }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;
  ~Line() {
    SetCommTimeouts(Get(), &former_limits_);
    SetCommState(Get(), &former_);
  }

  /// Sets the line up for raw bytes, without handshake.
  void SetUp(const LineMode& mode) {
    DCB line = former_;
    line.BaudRate = mode.settings.baud;
    line.ByteSize = static_cast<BYTE>(mode.settings.data_bits);
    line.Parity = kParities[static_cast<std::size_t>(mode.settings.parity)];
    line.StopBits = kStopBits[static_cast<std::size_t>(mode.settings.stop_bits)];
    line.fBinary = TRUE;
    line.fParity = FALSE;
    line.fOutxCtsFlow = FALSE;
    line.fOutxDsrFlow = FALSE;
    line.fDtrControl = DTR_CONTROL_ENABLE;
    line.fDsrSensitivity = FALSE;
    line.fOutX = FALSE;
    line.fInX = FALSE;
    line.fNull = FALSE;
    line.fRtsControl = RTS_CONTROL_ENABLE;
    line.fAbortOnError = FALSE;
    const DCB asked = line;
    if (SetCommState(Get(), &line) == 0 || GetCommState(Get(), &line) == 0 ||
        !IsSetUp(line, asked)) {
      throw LineFailure(Error::kInvalidPropertyValue, device_, mode.text);
    }
    baud_ = mode.settings.baud;
  }

  /// Writes `bytes` within the time that they need on the line plus `time_limit`.
  void Write(std::string_view bytes, milliseconds time_limit) {
    const auto deadline = steady_clock::now() + TimeOnLine(bytes.size(), baud_) + time_limit;
    DWORD error = Send(bytes, deadline);
    if (error == ERROR_SUCCESS) error = Drain(deadline);
    if (error == ERROR_SUCCESS) return;
    PurgeComm(Get(), PURGE_TXABORT | PURGE_TXCLEAR);
    throw LineFailure(Error::kWriteFailed, device_, SystemText(error));
  }

  const std::string& Device() const { return device_; }

 private:
  HANDLE Get() const { return handle_.get(); }

  /// Passes `bytes` to the driver. Returns 0 or the error of the system, ERROR_TIMEOUT after the
  /// deadline.
  DWORD Send(std::string_view bytes, steady_clock::time_point deadline) const {
    const auto left = std::chrono::ceil<milliseconds>(deadline - steady_clock::now());
    const auto limit = static_cast<DWORD>(std::max<std::int64_t>(left.count(), 1));
    COMMTIMEOUTS limits{};
    limits.ReadIntervalTimeout = MAXDWORD;  // reads never wait
    limits.WriteTotalTimeoutConstant = limit;
    if (SetCommTimeouts(Get(), &limits) == 0) return GetLastError();
    OVERLAPPED write{};
    write.hEvent = written_.get();
    if (WriteFile(Get(), bytes.data(), static_cast<DWORD>(bytes.size()), nullptr, &write) == 0 &&
        GetLastError() != ERROR_IO_PENDING) {
      return GetLastError();
    }
    const auto patience = limit + static_cast<DWORD>(kTimeToGiveUp.count());
    const bool ended = WaitForSingleObject(write.hEvent, patience) == WAIT_OBJECT_0;
    if (!ended) CancelIoEx(Get(), &write);
    DWORD count = 0;
    if (GetOverlappedResult(Get(), &write, &count, TRUE) == 0 && ended) return GetLastError();
    return count == bytes.size() ? ERROR_SUCCESS : ERROR_TIMEOUT;
  }

  /// Waits until the last byte has left the line; same results as `Send`. The system's own wait has
  /// no deadline, so it is used only for what the hardware holds.
  DWORD Drain(steady_clock::time_point deadline) const {
    for (;; std::this_thread::sleep_for(milliseconds(1))) {
      COMSTAT status{};
      DWORD errors = 0;
      if (ClearCommError(Get(), &errors, &status) == 0) return GetLastError();
      if (status.cbOutQue == 0) break;
      if (steady_clock::now() >= deadline) return ERROR_TIMEOUT;
    }
    return FlushFileBuffers(Get()) != 0 ? ERROR_SUCCESS : GetLastError();
  }

  std::string device_;
  Handle handle_;
  Handle written_;
  DCB former_{};
  COMMTIMEOUTS former_limits_{};
  std::uint32_t baud_ = 0;
};

}  // namespace

std::shared_ptr<SerialPort> SystemSerialPort(SerialDevices devices, milliseconds time_limit) {
  return std::make_shared<SerialControl<Line>>(std::move(devices), time_limit);
}

}  // namespace ZQ7Standard
