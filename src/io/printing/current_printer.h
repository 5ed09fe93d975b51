#ifndef ZQ7STANDARD_SRC_IO_PRINTING_CURRENT_PRINTER_H_
#define ZQ7STANDARD_SRC_IO_PRINTING_CURRENT_PRINTER_H_

#include <ZQ7Standard/platform/printers.h>

#include <functional>
#include <optional>
#include <string_view>

namespace ZQ7Standard {

/// Makes the last installed printer of that name current, where the current one has
/// another. Returns the one that is current then.
Printer MakeCurrent(PrinterList& printers, const std::optional<Text>& name);

/// Does `steps` as one operation of the list, leaving out those after one that fails.
void TryOperation(PrinterList& printers, const std::function<void()>& steps);

/// The same, but reports the failure in the name of `operation`: one without a number of
/// its own is a printer error.
void DoOperation(std::string_view operation, PrinterList& printers,
                 const std::function<void()>& steps);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_PRINTING_CURRENT_PRINTER_H_
