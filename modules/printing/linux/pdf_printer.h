#ifndef ZQ7STANDARD_MODULES_PRINTING_LINUX_PDF_PRINTER_H_
#define ZQ7STANDARD_MODULES_PRINTING_LINUX_PDF_PRINTER_H_

#include <ZQ7Standard/platform/printers.h>

#include <filesystem>

namespace ZQ7Standard {

/// The printer "PDF", which writes each document to a file of its own in `folder`,
/// else in the documents folder of the user: "Document 20240115-093000.pdf", with
/// " (2)" and so on behind the time where a file of that name is there. The folder is
/// made when it is not there. It takes every paper, portrait and landscape, every
/// quality, and the default bin.
Printer PdfPrinter(std::filesystem::path folder);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_LINUX_PDF_PRINTER_H_
