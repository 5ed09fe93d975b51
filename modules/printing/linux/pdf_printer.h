#ifndef ZQ7STANDARD_MODULES_PRINTING_LINUX_PDF_PRINTER_H_
#define ZQ7STANDARD_MODULES_PRINTING_LINUX_PDF_PRINTER_H_

#include <ZQ7Standard/platform/printers.h>

#include <filesystem>

namespace ZQ7Standard {

/// The printer "PDF", which writes each document to a file of its own in `folder`, or else in the
/// user's documents folder: "Document 20240115-093000.pdf", with " (2)" and so on after the time if
/// that exists. The folder is created if necessary. It supports every paper, portrait and
/// landscape, every quality, and the default bin.
Printer PdfPrinter(std::filesystem::path folder);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_LINUX_PDF_PRINTER_H_
