#include <ZQ7Standard/PrintObject.h>

#include <utility>

#include "base/case_mapping.h"
#include "io/failures.h"
#include "io/printing/current_printer.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

constexpr std::int16_t kUserDefinedPaper = 256;
constexpr std::int16_t kDefaultBin = 7;

/// The settings of `printer`, which a host's list may have left empty.
PrinterSettings& SettingsOf(const Printer& printer) {
  if (!printer.settings) throw RunTimeError(Error::kPrinterError, "the printer has no settings");
  return *printer.settings;
}

/// Whether the environment variable "OS" names the system that defines papers from 256 up.
bool IsWindowsNt(const ServiceSet& services) {
  const auto os = services.Os();
  return os && EqualsIgnoringCase(*os, u"WINDOWS_NT");
}

}  // namespace

PrintObject::PrintObject() : PrintObject(Services{}) {}

PrintObject::PrintObject(Services services)
    : services_(std::make_shared<ServiceSet>(std::move(services))) {
  if (!services_->Given().printers) return;
  // Another object with the same printers may make a different one current.
  TryOperation(services_->Printers(),
               [this] { device_name_ = services_->Printers().Current().device_name; });
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
  TryOperation(services_->Printers(), [&] {
    const Printer printer = MakeCurrent(services_->Printers(), device_name_);
    PrinterSettings& settings = SettingsOf(printer);
    in_force = settings.Get(PrinterSetting::kPaperSize);
    const bool refused = StartSize >= kUserDefinedPaper && IsWindowsNt(*services_);
    if (StartSize >= 1 && !refused) in_force = StartSize;
    settings.Set(PrinterSetting::kPaperSize, in_force);
  });
  return in_force;
}

std::int16_t PrintObject::CheckPaperBin(std::int16_t StartBin) {
  std::int16_t in_force = 0;
  TryOperation(services_->Printers(), [&] {
    const Printer printer = MakeCurrent(services_->Printers(), device_name_);
    PrinterSettings& settings = SettingsOf(printer);
    in_force = settings.Get(PrinterSetting::kPaperBin);
    if (StartBin >= 1 && StartBin != kDefaultBin) in_force = StartBin;
    settings.Set(PrinterSetting::kPaperBin, in_force);
  });
  return in_force;
}

}  // namespace ZQ7Standard
