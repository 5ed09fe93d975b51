#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PRINTER_DEVICE_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PRINTER_DEVICE_H_

#include <ZQ7Standard/platform/printer_settings.h>
#include <windows.h>

#include <string>
#include <vector>

namespace ZQ7Standard {

/// A DEVMODE, followed by what the driver keeps for itself: how a printer prints.
using DeviceMode = std::vector<BYTE>;

/// An installed printer. Its settings are the user's until they are set.
class PrinterDevice final : public PrinterSettings {
 public:
  explicit PrinterDevice(std::wstring name) : name_(std::move(name)) {}

  std::int16_t Get(PrinterSetting setting) override;
  void Set(PrinterSetting setting, std::int16_t value) override;

  const std::wstring& Name() const { return name_; }
  /// The settings in force, which the printer is asked for once.
  const DeviceMode& Mode();

 private:
  std::wstring name_;
  DeviceMode mode_;  // empty until it is needed
};

/// Where a printer's jobs go, and what turns them into its language.
struct PrinterPort {
  std::wstring port;
  std::wstring driver;
};

PrinterPort PortOf(const std::wstring& printer);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PRINTER_DEVICE_H_
