#ifndef DEMO_PDF_FOLDER_H_
#define DEMO_PDF_FOLDER_H_

#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/StandardObject.h>

#include <filesystem>
#include <memory>

#include "invoice.h"
#include "office.h"

namespace InvoiceDemo {

/// A folder of PDF files with an invoice on a page in each, by the name of its number:
/// "IV67-0026.pdf". A file is there whole or not at all; one of the same number is
/// replaced.
///
/// Whatever fails raises a `std::runtime_error`. A real printer is never used.
class PdfFolder {
 public:
  /// Makes the folder where it is not there.
  explicit PdfFolder(const std::filesystem::path& folder);
  ~PdfFolder();
  PdfFolder(const PdfFolder&) = delete;
  PdfFolder& operator=(const PdfFolder&) = delete;

  void Print(const ZQ7Standard::StandardObject& standard, const Company& sender,
             const Invoice& invoice);

 private:
  std::filesystem::path folder_;
  std::filesystem::path new_files_;  // where the printer puts a document
  std::unique_ptr<ZQ7Standard::PrintObject> printer_;
};

}  // namespace InvoiceDemo

#endif  // DEMO_PDF_FOLDER_H_
