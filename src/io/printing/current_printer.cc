#include "io/printing/current_printer.h"

#include "base/case_mapping.h"
#include "base/raise.h"
#include "io/failures.h"

namespace ZQ7Standard {

Printer MakeCurrent(PrinterList& printers, const std::optional<Text>& name) {
  Printer current = printers.Current();
  if (!name || EqualsIgnoringCase(current.device_name, *name)) return current;
  for (const Printer& printer : printers.Installed()) {
    if (EqualsIgnoringCase(printer.device_name, *name)) printers.MakeCurrent(printer);
  }
  return printers.Current();
}

void TryOperation(PrinterList& printers, const std::function<void()>& steps) {
  Try([&] { printers.DoOperation(steps); });
}

void DoOperation(std::string_view operation, PrinterList& printers,
                 const std::function<void()>& steps) {
  const auto failure = FailureOf([&] { printers.DoOperation(steps); });
  if (!failure) return;
  RaiseNamed({operation}, failure->error ? RunTimeError(*failure->error)
                                         : RunTimeError(Error::kPrinterError, failure->text));
}

}  // namespace ZQ7Standard
