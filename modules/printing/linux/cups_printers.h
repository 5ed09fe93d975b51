#ifndef ZQ7STANDARD_MODULES_PRINTING_LINUX_CUPS_PRINTERS_H_
#define ZQ7STANDARD_MODULES_PRINTING_LINUX_CUPS_PRINTERS_H_

#include <ZQ7Standard/platform/printers.h>

#include <string>
#include <vector>

namespace ZQ7Standard {

// The printers of the CUPS server that the environment names. Each request has a
// connection of its own, so that a server that went away and came back is found
// again, and ends in time (`QuestionTime`). What fails raises error 482.

/// The names of its printers, in the order of the server; none where no server
/// answers.
std::vector<std::string> CupsPrinterNames();

/// The name of the printer that the user or the server has as default; empty when
/// there is none.
std::string CupsDefaultName();

/// The printer of that name, with the settings that the server has for it.
Printer CupsPrinter(const std::string& name);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_LINUX_CUPS_PRINTERS_H_
