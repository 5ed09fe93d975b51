#include "printing/linux/printers.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "printing/jpeg_picture.h"
#include "printing/linux/cups_printers.h"
#include "printing/linux/cups_server.h"
#include "printing/linux/pdf_printer.h"

namespace ZQ7Standard {
namespace {

class LinuxPrinters final : public PrinterList {
 public:
  explicit LinuxPrinters(std::filesystem::path pdf_folder)
      : pdf_(PdfPrinter(std::move(pdf_folder))) {}

  std::vector<Printer> Installed() override {
    std::vector<Printer> printers;
    for (const std::string& name : CupsPrinterNames()) printers.push_back(Queue(name));
    if (printers.empty()) printers.push_back(pdf_);
    return printers;
  }

  Printer Current() override {
    if (!current_) current_ = Default();
    return *current_;
  }

  void MakeCurrent(const Printer& printer) override { current_ = printer; }

  void DoOperation(const std::function<void()>& steps) override {
    const QuestionTime together;
    steps();
  }

 private:
  /// Returns the same printer each time, which keeps its settings and document.
  const Printer& Queue(const std::string& name) {
    const auto at = queues_.find(name);
    return at != queues_.end() ? at->second
                               : queues_.emplace(name, CupsPrinter(name)).first->second;
  }

  Printer Default() {
    const std::vector<Printer> printers = Installed();
    if (printers.front().document == pdf_.document) return pdf_;
    const auto named =
        std::ranges::find(printers, FromUtf8(CupsDefaultName()), &Printer::device_name);
    return named == printers.end() ? printers.front() : *named;
  }

  Printer pdf_;
  std::map<std::string, Printer> queues_;
  std::optional<Printer> current_;
};

std::shared_ptr<PrinterList> NewPrinters(std::filesystem::path pdf_folder) {
  return std::make_shared<LinuxPrinters>(std::move(pdf_folder));
}

}  // namespace

const PrintingFunctions kPrintingFunctions = {.system_printers = NewPrinters,
                                              .to_jpeg = PictureAsJpeg};

}  // namespace ZQ7Standard
