#include <ZQ7Standard/platform/printers.h>

namespace ZQ7Standard {

PrintDocument::~PrintDocument() = default;

PrinterSettings::~PrinterSettings() = default;

PrinterList::~PrinterList() = default;

}  // namespace ZQ7Standard
