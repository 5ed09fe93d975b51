#include "pdf_folder.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/printers.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>

#include "page.h"
#include "terminal_text.h"

namespace InvoiceDemo {
namespace {

namespace fs = std::filesystem;

using ZQ7Standard::FromUtf8;
using ZQ7Standard::PrinterList;
using ZQ7Standard::StandardObject;
using ZQ7Standard::Text;
using ZQ7Standard::Utf8;

constexpr std::int16_t kA4 = 9;

/// The printer of PDF files, which is there where no print server answers.
std::shared_ptr<PrinterList> PdfPrinter(const fs::path& folder) {
  auto printers = ZQ7Standard::SystemPrinters(FromUtf8(folder.string()));
  try {
    const Text name = printers->Current().device_name;
    if (name == u"PDF") return printers;
    throw std::runtime_error("no PDF can be made: a print server answers, with the printer " +
                             Utf8(name) + " (CUPS_SERVER=/none turns to files)");
  } catch (const ZQ7Standard::RunTimeError& failure) {
    throw std::runtime_error(std::string("no PDF can be made: ") + failure.what());
  }
}

/// The number as a file's name: a slash of another kind stands for "/".
fs::path FileName(const Invoice& invoice) {
  Text name = OneLine(invoice.number);
  for (char16_t& c : name) {
    if (c == u'/') c = u'\u2215';
  }
  return Utf8(name + u".pdf");
}

}  // namespace

PdfFolder::PdfFolder(const fs::path& folder)
    : folder_(folder), new_files_(folder / ".invoice-page") {
  auto printers = PdfPrinter(new_files_);
  std::error_code failure;
  fs::remove_all(new_files_, failure);
  fs::create_directories(new_files_, failure);
  if (failure) {
    throw std::runtime_error("cannot make the folder " + folder.string() + ": " +
                             failure.message());
  }
  printer_ = std::make_unique<ZQ7Standard::PrintObject>(
      ZQ7Standard::Services{.printers = std::move(printers)});
}

PdfFolder::~PdfFolder() {
  std::error_code ignored;
  fs::remove_all(new_files_, ignored);
}

void PdfFolder::Print(const StandardObject& standard, const Company& sender,
                      const Invoice& invoice) {
  printer_->CheckPaperSize(kA4);
  printer_->PrintStart();
  DrawPage(*printer_, standard, sender, invoice);
  printer_->PrintOut();
  const fs::directory_iterator made(new_files_);
  if (made == fs::directory_iterator()) throw std::runtime_error("the printer made no PDF file");
  fs::rename(made->path(), folder_ / FileName(invoice));
}

}  // namespace InvoiceDemo
