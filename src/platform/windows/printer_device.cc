#include "platform/windows/printer_device.h"

#include <ZQ7Standard/RunTimeError.h>
#include <winspool.h>

#include <algorithm>
#include <array>
#include <memory>

#include "platform/windows/printer_errors.h"

namespace ZQ7Standard {
namespace {

constexpr std::int16_t kPortrait = DMORIENT_PORTRAIT;
constexpr std::int16_t kDefaultBin = DMBIN_AUTO;

/// A setting's place in a DEVMODE.
struct Field {
  PrinterSetting setting;
  DWORD flag;  // of dmFields
  short DEVMODEW::*value;
  std::int16_t other;  // for a printer without the setting
  const char* name;
};

/// In the order of the settings.
constexpr auto kFields = std::to_array<Field>({
    {PrinterSetting::kOrientation, DM_ORIENTATION, &DEVMODEW::dmOrientation, kPortrait,
     "orientation"},
    {PrinterSetting::kPaperSize, DM_PAPERSIZE, &DEVMODEW::dmPaperSize, DMPAPER_USER, "paper"},
    {PrinterSetting::kPaperBin, DM_DEFAULTSOURCE, &DEVMODEW::dmDefaultSource, kDefaultBin, "bin"},
    {PrinterSetting::kPrintQuality, DM_PRINTQUALITY, &DEVMODEW::dmPrintQuality, DMRES_MEDIUM,
     "print quality"},
});

const Field& FieldOf(PrinterSetting setting) {
  return kFields[static_cast<std::size_t>(setting)];
}

DEVMODEW& ModeIn(DeviceMode& mode) {
  return *reinterpret_cast<DEVMODEW*>(mode.data());
}

struct ClosePrinterOf {
  using pointer = HANDLE;
  void operator()(HANDLE printer) const { ClosePrinter(printer); }
};

/// An open printer. Failures raise 482.
class OpenedPrinter {
 public:
  explicit OpenedPrinter(const std::wstring& name) : name_(name) {
    HANDLE printer = nullptr;
    if (!OpenPrinterW(name_.data(), &printer, nullptr)) FailPrinting("OpenPrinterW", name_);
    printer_.reset(printer);
  }

  DeviceMode UsersMode() {
    DeviceMode mode = NewMode();
    if (Properties(mode, nullptr, DM_OUT_BUFFER) != IDOK) Fail();
    return mode;
  }

  /// What the driver makes of `asked`.
  DeviceMode Completed(DeviceMode asked) {
    DeviceMode mode = NewMode();
    if (Properties(mode, &ModeIn(asked), DM_IN_BUFFER | DM_OUT_BUFFER) != IDOK) Fail();
    return mode;
  }

  PrinterPort Port() {
    DWORD size = 0;
    GetPrinterW(printer_.get(), 2, nullptr, 0, &size);
    std::vector<BYTE> bytes(size);
    if (!GetPrinterW(printer_.get(), 2, bytes.data(), size, &size)) {
      FailPrinting("GetPrinterW", name_);
    }
    const auto* const printer = reinterpret_cast<const PRINTER_INFO_2W*>(bytes.data());
    const auto text = [](const wchar_t* name) {
      return std::wstring(name == nullptr ? L"" : name);
    };
    return {text(printer->pPortName), text(printer->pDriverName)};
  }

 private:
  [[noreturn]] void Fail() const { FailPrinting("DocumentPropertiesW", name_); }

  LONG Properties(DeviceMode& out, DEVMODEW* in, DWORD how) {
    return DocumentPropertiesW(nullptr, printer_.get(), name_.data(), &ModeIn(out), in, how);
  }

  DeviceMode NewMode() {
    const LONG size =
        DocumentPropertiesW(nullptr, printer_.get(), name_.data(), nullptr, nullptr, 0);
    if (size < static_cast<LONG>(sizeof(DEVMODEW))) Fail();
    return DeviceMode(static_cast<std::size_t>(size));
  }

  std::wstring name_;
  std::unique_ptr<HANDLE, ClosePrinterOf> printer_;
};

/// What a printer can do, as a list of the driver's.
template <typename Number>
std::vector<Number> Capabilities(const std::wstring& printer, WORD kind, int numbers_each = 1) {
  const int count = DeviceCapabilitiesW(printer.c_str(), nullptr, kind, nullptr, nullptr);
  std::vector<Number> numbers(static_cast<std::size_t>(std::max(count, 0) * numbers_each));
  if (!numbers.empty()) {
    DeviceCapabilitiesW(printer.c_str(), nullptr, kind, reinterpret_cast<wchar_t*>(numbers.data()),
                        nullptr);
  }
  return numbers;
}

bool Lists(const std::wstring& printer, WORD kind, std::int16_t value) {
  const auto codes = Capabilities<WORD>(printer, kind);
  return std::ranges::find(codes, static_cast<WORD>(value)) != codes.end();
}

/// Whether a printer has a value. Most drivers take any, and print as they can.
bool Supports(const std::wstring& printer, PrinterSetting setting, std::int16_t value) {
  switch (setting) {
    case PrinterSetting::kOrientation:
      return value == kPortrait ||
             (value == DMORIENT_LANDSCAPE &&
              DeviceCapabilitiesW(printer.c_str(), nullptr, DC_ORIENTATION, nullptr, nullptr) > 0);
    case PrinterSetting::kPaperSize:
      return Lists(printer, DC_PAPERS, value);
    case PrinterSetting::kPaperBin:
      return Lists(printer, DC_BINS, value);
    case PrinterSetting::kPrintQuality:
      break;
  }
  if (value < 0) return value >= DMRES_HIGH;
  const auto dots = Capabilities<LONG>(printer, DC_ENUMRESOLUTIONS, 2);
  return std::ranges::find(dots, LONG{value}) != dots.end();
}

}  // namespace

const DeviceMode& PrinterDevice::Mode() {
  if (mode_.empty()) mode_ = OpenedPrinter(name_).UsersMode();
  return mode_;
}

std::int16_t PrinterDevice::Get(PrinterSetting setting) {
  Mode();
  const Field& field = FieldOf(setting);
  const DEVMODEW& mode = ModeIn(mode_);
  return (mode.dmFields & field.flag) != 0 ? mode.*field.value : field.other;
}

void PrinterDevice::Set(PrinterSetting setting, std::int16_t value) {
  if (value == Get(setting)) return;
  const Field& field = FieldOf(setting);
  DeviceMode asked = mode_;
  const bool has_setting = (ModeIn(asked).dmFields & field.flag) != 0;
  if (has_setting && Supports(name_, setting, value)) {
    ModeIn(asked).*field.value = value;
    // A size or a name would count for more than the code.
    if (setting == PrinterSetting::kPaperSize) {
      ModeIn(asked).dmFields &= ~static_cast<DWORD>(DM_PAPERLENGTH | DM_PAPERWIDTH | DM_FORMNAME);
    }
    DeviceMode mode = OpenedPrinter(name_).Completed(std::move(asked));
    // A quality may become dots per inch.
    if (setting == PrinterSetting::kPrintQuality || ModeIn(mode).*field.value == value) {
      mode_ = std::move(mode);
      return;
    }
  }
  throw RunTimeError(Error::kPrinterError, "the printer has no " + std::string(field.name) +
                                               " of code " + std::to_string(value));
}

PrinterPort PortOf(const std::wstring& printer) {
  return OpenedPrinter(printer).Port();
}

}  // namespace ZQ7Standard
