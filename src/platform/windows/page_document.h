#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PAGE_DOCUMENT_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PAGE_DOCUMENT_H_

#include <ZQ7Standard/platform/print_document.h>

#include <filesystem>
#include <memory>

#include "platform/windows/printer_device.h"

namespace ZQ7Standard {

/// One-page documents for a printer, always in millimetres. They are kept here until they end: the
/// print system gets a whole page or nothing. `folder` is where documents go if the printer's port
/// asks for a file.
std::shared_ptr<PrintDocument> NewPageDocument(std::shared_ptr<PrinterDevice> printer,
                                               std::filesystem::path folder);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PAGE_DOCUMENT_H_
