#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/printers.h>

namespace ZQ7Standard {
namespace {

class NoPrinters final : public PrinterList {
 public:
  std::vector<Printer> Installed() override { return {}; }
  Printer Current() override {
    throw RunTimeError(Error::kPrinterError,
                       "no printer is installed: the library was built without printing");
  }
  void MakeCurrent(const Printer& /*printer*/) override {}
};

}  // namespace

std::shared_ptr<PrinterList> SystemPrinters(std::filesystem::path /*pdf_folder*/) {
  return std::make_shared<NoPrinters>();
}

}  // namespace ZQ7Standard
