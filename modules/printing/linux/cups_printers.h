#ifndef ZQ7STANDARD_MODULES_PRINTING_LINUX_CUPS_PRINTERS_H_
#define ZQ7STANDARD_MODULES_PRINTING_LINUX_CUPS_PRINTERS_H_

#include <ZQ7Standard/platform/printers.h>

#include <string>
#include <vector>

namespace ZQ7Standard {

// The printers of the environment's CUPS server. Each request has its own connection, so that a
// server that went away is found again when it returns, and has a time limit (`QuestionTime`).
// Failures raise error 482.

/// The names of its printers, in the server's order; empty if no server answers.
std::vector<std::string> CupsPrinterNames();

/// The name of the user's or server's default printer; empty if there is none.
std::string CupsDefaultName();

/// The printer of that name, with its settings on the server.
Printer CupsPrinter(const std::string& name);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_LINUX_CUPS_PRINTERS_H_
