#include "platform/windows/printers.h"

#include <ZQ7Standard/RunTimeError.h>
#include <windows.h>
#include <winspool.h>

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/windows/page_document.h"
#include "platform/windows/printer_device.h"
#include "platform/windows/printer_errors.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

constexpr DWORD kKinds = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
// It names the printers without asking the machines that they are connected to.
constexpr DWORD kNamesOnly = 4;

std::vector<std::wstring> InstalledNames() {
  std::vector<BYTE> bytes;
  DWORD size = 0;
  DWORD count = 0;
  // A printer may be added in between.
  while (!EnumPrintersW(kKinds, nullptr, kNamesOnly, bytes.data(), size, &size, &count)) {
    if (GetLastError() != ERROR_INSUFFICIENT_BUFFER) FailPrinting("EnumPrintersW", {});
    bytes.resize(size);
  }
  const auto* const printers = reinterpret_cast<const PRINTER_INFO_4W*>(bytes.data());
  std::vector<std::wstring> names;
  for (DWORD i = 0; i < count; ++i) names.emplace_back(printers[i].pPrinterName);
  return names;
}

/// Empty if there is none.
std::wstring DefaultName() {
  DWORD size = 0;
  GetDefaultPrinterW(nullptr, &size);
  std::wstring name(size, L'\0');
  if (size == 0 || !GetDefaultPrinterW(name.data(), &size)) return {};
  name.resize(size - 1);  // it ends with a 0
  return name;
}

class WindowsPrinters final : public PrinterList {
 public:
  explicit WindowsPrinters(std::filesystem::path folder) : folder_(std::move(folder)) {}

  std::vector<Printer> Installed() override {
    std::vector<Printer> printers;
    for (const std::wstring& name : InstalledNames()) printers.push_back(Named(name));
    return printers;
  }

  Printer Current() override {
    if (!current_) current_ = Default();
    return *current_;
  }

  void MakeCurrent(const Printer& printer) override { current_ = printer; }

 private:
  /// Returns the same printer each time, which keeps its settings and document.
  const Printer& Named(const std::wstring& name) {
    const auto at = printers_.find(name);
    if (at != printers_.end()) return at->second;
    const auto device = std::make_shared<PrinterDevice>(name);
    return printers_
        .emplace(name, Printer{FromWide(name), device, NewPageDocument(device, folder_)})
        .first->second;
  }

  Printer Default() {
    const std::vector<Printer> printers = Installed();
    if (printers.empty()) throw RunTimeError(Error::kPrinterError, "no printer is installed");
    const auto named = std::ranges::find(printers, FromWide(DefaultName()), &Printer::device_name);
    return named == printers.end() ? printers.front() : *named;
  }

  std::filesystem::path folder_;
  std::map<std::wstring, Printer> printers_;
  std::optional<Printer> current_;
};

}  // namespace

std::shared_ptr<PrinterList> NewPrinters(std::filesystem::path folder) {
  return std::make_shared<WindowsPrinters>(std::move(folder));
}

}  // namespace ZQ7Standard
