#include <ZQ7Standard/PrintObject.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "io/failures.h"
#include "text/case_mapping.h"

namespace ZQ7Standard {
namespace {

constexpr std::int16_t kUserDefinedPaper = 256;
constexpr std::int16_t kDefaultBin = 7;

bool SameName(TextView a, TextView b) {
  return std::ranges::equal(a, b, {}, ToUpper, ToUpper);
}

/// The settings of `printer`, which the list of a host may have left empty.
PrinterSettings& SettingsOf(const Printer& printer) {
  if (!printer.settings) throw PrinterFailure("the printer has no settings");
  return *printer.settings;
}

/// Whether the environment variable "OS", or what the host put in its place, names
/// the system that has papers of its own from 256 up.
bool IsWindowsNt(const std::optional<Text>& os) {
  if (os) return SameName(*os, u"WINDOWS_NT");
  const char* const variable = std::getenv("OS");
  return variable != nullptr && SameName(FromUtf8(variable), u"WINDOWS_NT");
}

}  // namespace

PrintObject::PrintObject() : PrintObject(PrintServices{}) {}

PrintObject::PrintObject(PrintServices services) : services_(std::move(services)) {
  if (!services_.printers) services_.printers = SystemPrinters();
  // The texts of papers are there on a machine without a printer too, and a printer
  // whose settings cannot be read is still the one to print on.
  Try([this] {
    const Printer printer = services_.printers->Current();
    setup_.device_name = printer.device_name;
    setup_ = SetupOf(printer);
  });
}

PrintObject::Setup PrintObject::SetupOf(const Printer& printer) {
  PrinterSettings& settings = SettingsOf(printer);
  return {printer.device_name, settings.Get(PrinterSetting::kOrientation),
          settings.Get(PrinterSetting::kPaperSize), settings.Get(PrinterSetting::kPaperBin),
          settings.Get(PrinterSetting::kPrintQuality)};
}

Printer PrintObject::MakeRememberedCurrent() {
  Printer current = services_.printers->Current();
  if (SameName(current.device_name, setup_.device_name)) return current;
  for (const Printer& printer : services_.printers->Installed()) {
    if (SameName(printer.device_name, setup_.device_name)) services_.printers->MakeCurrent(printer);
  }
  return services_.printers->Current();
}

std::int16_t PrintObject::SelectPrinter(TextView DeviceName, std::int16_t Orientation,
                                        std::int16_t PaperSize, std::int16_t PaperBin) {
  return SelectPrinter2(DeviceName, Orientation, PaperSize, PaperBin, 0);
}

std::int16_t PrintObject::SelectPrinter2(TextView DeviceName, std::int16_t Orientation,
                                         std::int16_t PaperSize, std::int16_t PaperBin,
                                         std::int16_t PrintQuality) {
  setup_ = {Text(DeviceName), Orientation, PaperSize, PaperBin, PrintQuality};
  return 1;
}

std::int16_t PrintObject::CheckPaperSize(std::int16_t StartSize) {
  std::int16_t in_force = 0;
  Try([&] {
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
  Try([&] {
    const Printer printer = MakeRememberedCurrent();
    PrinterSettings& settings = SettingsOf(printer);
    in_force = settings.Get(PrinterSetting::kPaperBin);
    if (StartBin >= 1 && StartBin != kDefaultBin) in_force = StartBin;
    settings.Set(PrinterSetting::kPaperBin, in_force);
  });
  return in_force;
}

}  // namespace ZQ7Standard
