#include <ZQ7Standard/Modules.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/printers.h>

#include <utility>

#include "platform/modules.h"

namespace ZQ7Standard {
namespace {

/// Replaces the machine's printers if their module is missing.
class NoPrinters final : public PrinterList {
 public:
  explicit NoPrinters(std::string problem) : problem_(std::move(problem)) {}

  std::vector<Printer> Installed() override { return {}; }
  Printer Current() override {
    throw RunTimeError(Error::kPrinterError, "no printer is installed: " + problem_);
  }
  void MakeCurrent(const Printer& /*printer*/) override {}

 private:
  std::string problem_;
};

}  // namespace

std::shared_ptr<PrinterList> SystemPrinters(std::filesystem::path pdf_folder) {
  const auto& [functions, problem] = PrintingModule();
  if (functions == nullptr) return std::make_shared<NoPrinters>(problem);
  return functions->system_printers(std::move(pdf_folder));
}

std::vector<ModuleStatus> Modules() {
  return {{"printing", PrintingModule().problem}, {"network", NetworkModule().problem}};
}

}  // namespace ZQ7Standard
