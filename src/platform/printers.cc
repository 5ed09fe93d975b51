#include <ZQ7Standard/platform/printers.h>

namespace ZQ7Standard {

PrintDocument::~PrintDocument() = default;

PrinterSettings::~PrinterSettings() = default;

PrinterList::~PrinterList() = default;

void PrinterList::DoOperation(const std::function<void()>& steps) {
  steps();
}

}  // namespace ZQ7Standard
