#ifndef ZQ7STANDARD_SRC_IO_PRINTING_CURRENT_PRINTER_H_
#define ZQ7STANDARD_SRC_IO_PRINTING_CURRENT_PRINTER_H_

#include <ZQ7Standard/platform/printers.h>

#include <functional>
#include <optional>
#include <string_view>

namespace ZQ7Standard {

/// Makes the last installed printer of that name current, unless the current one has it already.
/// Returns the current printer.
Printer MakeCurrent(PrinterList& printers, const std::optional<Text>& name);

/// Runs `steps` as one operation of the list, up to the first that fails.
void TryOperation(PrinterList& printers, const std::function<void()>& steps);

/// The same, but raises the failure in the name of `operation`; a failure without a number is a
/// printer error.
void DoOperation(std::string_view operation, PrinterList& printers,
                 const std::function<void()>& steps);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_PRINTING_CURRENT_PRINTER_H_
