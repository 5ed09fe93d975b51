#include <ZQ7Standard/PrintObject.h>

#include <cstdlib>
#include <utility>

#include "base/case_mapping.h"
#include "io/failures.h"

namespace ZQ7Standard {
namespace {

constexpr std::int16_t kUserDefinedPaper = 256;
constexpr std::int16_t kDefaultBin = 7;

/// The settings of `printer`, which the list of a host may have left empty.
PrinterSettings& SettingsOf(const Printer& printer) {
  if (!printer.settings) throw RunTimeError(Error::kPrinterError, "the printer has no settings");
  return *printer.settings;
}

/// Whether the environment variable "OS", or what the host put in its place, names
/// the system that has papers of its own from 256 up.
bool IsWindowsNt(const std::optional<Text>& os) {
  if (os) return EqualsIgnoringCase(*os, u"WINDOWS_NT");
  const char* const variable = std::getenv("OS");
  return variable != nullptr && EqualsIgnoringCase(FromUtf8(variable), u"WINDOWS_NT");
}

}  // namespace

PrintObject::PrintObject() : PrintObject(PrintServices{}) {}

PrintObject::PrintObject(PrintServices services) : services_(std::move(services)) {
  if (!services_.printers) {
    services_.printers = SystemPrinters();
  } else {
    // Another object with the same printers may make another one current.
    Attempt([this] { device_name_ = services_.printers->Current().device_name; });
  }
}

/// Does `steps` as one operation, leaving out those after one that fails.
void PrintObject::Attempt(const std::function<void()>& steps) const {
  Try([&] { services_.printers->DoOperation(steps); });
}

/// Does `steps` as one operation, and reports its failure.
void PrintObject::Perform(std::string_view operation, const std::function<void()>& steps) const {
  Reported(operation, [&] { services_.printers->DoOperation(steps); });
}

Printer PrintObject::MakeRememberedCurrent() {
  Printer current = services_.printers->Current();
  if (!device_name_ || EqualsIgnoringCase(current.device_name, *device_name_)) return current;
  for (const Printer& printer : services_.printers->Installed()) {
    if (EqualsIgnoringCase(printer.device_name, *device_name_))
      services_.printers->MakeCurrent(printer);
  }
  return services_.printers->Current();
}

std::int16_t PrintObject::SelectPrinter(TextView DeviceName, std::int16_t Orientation,
                                        std::int16_t PaperSize, std::int16_t PaperBin) {
  return SelectPrinter2(DeviceName, Orientation, PaperSize, PaperBin, 0);
}

std::int16_t PrintObject::SelectPrinter2(TextView DeviceName, std::int16_t /*Orientation*/,
                                         std::int16_t /*PaperSize*/, std::int16_t /*PaperBin*/,
                                         std::int16_t /*PrintQuality*/) {
  device_name_ = Text(DeviceName);
  return 1;
}

std::int16_t PrintObject::CheckPaperSize(std::int16_t StartSize) {
  std::int16_t in_force = 0;
  Attempt([&] {
    const Printer printer = MakeRememberedCurrent();
    PrinterSettings& settings = SettingsOf(printer);
    in_force = settings.Get(PrinterSetting::kPaperSize);
    const bool refused = StartSize >= kUserDefinedPaper && IsWindowsNt(services_.os);
    if (StartSize >= 1 && !refused) in_force = StartSize;
    settings.Set(PrinterSetting::kPaperSize, in_force);
  });
  return in_force;
}

std::int16_t PrintObject::CheckPaperBin(std::int16_t StartBin) {
  std::int16_t in_force = 0;
  Attempt([&] {
    const Printer printer = MakeRememberedCurrent();
    PrinterSettings& settings = SettingsOf(printer);
    in_force = settings.Get(PrinterSetting::kPaperBin);
    if (StartBin >= 1 && StartBin != kDefaultBin) in_force = StartBin;
    settings.Set(PrinterSetting::kPaperBin, in_force);
  });
  return in_force;
}

}  // namespace ZQ7Standard
