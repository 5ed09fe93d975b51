#ifndef ZQ7STANDARD_SRC_PLATFORM_SERIAL_CONTROL_H_
#define ZQ7STANDARD_SRC_PLATFORM_SERIAL_CONTROL_H_

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/serial_port.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "base/code_page.h"
#include "base/unicode.h"
#include "formats/serial_settings.h"

namespace ZQ7Standard {

/// The error of a line, with its device and any detail.
RunTimeError LineFailure(Error error, const std::string& device, const std::string& detail = "");

/// The requested mode of a line, and the text that says so.
struct LineMode {
  SerialSettings settings;
  std::string text = "\"9600,N,8,1\"";
};

/// Reads settings; nullopt for those that no serial hardware can do.
std::optional<LineMode> ReadLineMode(TextView text);

/// How long that many bytes take to leave the line, at most.
std::chrono::milliseconds TimeOnLine(std::size_t size, std::uint32_t baud);

/// The control of a system whose open lines are `Line`s.
template <typename Line>
class SerialControl final : public SerialPort {
 public:
  SerialControl(SerialDevices devices, std::chrono::milliseconds time_limit)
      : devices_(std::move(devices)),
        time_limit_(std::min<std::chrono::milliseconds>(time_limit, std::chrono::hours(24))) {}

  void SetCommPort(std::int16_t port) override { port_ = port; }

  void SetSettings(TextView settings) override {
    auto mode = ReadLineMode(settings);
    if (!mode) throw LineFailure(Error::kInvalidPropertyValue, Device(), Quoted(settings));
    mode_ = std::move(*mode);
  }

  void SetInputLen(std::int16_t /*length*/) override {}

  void SetPortOpen(bool open) override {
    if (!open) {
      line_.reset();
      return;
    }
    if (line_) throw LineFailure(Error::kPortAlreadyOpen, line_->Device());
    auto line = std::make_unique<Line>(Device());
    line->SetUp(mode_);
    line_ = std::move(line);
  }

  void SetOutput(TextView text) override {
    if (!line_) throw LineFailure(Error::kPortNotOpen, Device());
    line_->Write(ToCodePage(text), time_limit_);
  }

  bool PortOpen() const override { return line_ != nullptr; }

 private:
  std::string Device() const {
    const auto device = devices_.find(port_);
    return device != devices_.end() ? device->second : Line::DeviceOf(port_);
  }

  SerialDevices devices_;
  std::chrono::milliseconds time_limit_;
  std::int16_t port_ = 1;
  LineMode mode_;
  std::unique_ptr<Line> line_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_SERIAL_CONTROL_H_
