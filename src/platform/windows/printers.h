#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PRINTERS_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PRINTERS_H_

#include <ZQ7Standard/platform/printers.h>

#include <filesystem>
#include <memory>

namespace ZQ7Standard {

/// The printers of the machine, as `SystemPrinters` says.
std::shared_ptr<PrinterList> NewPrinters(std::filesystem::path folder);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PRINTERS_H_
