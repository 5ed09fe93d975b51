#ifndef ZQ7STANDARD_TOOLS_ZQ7_EXAMPLE_PRINTER_H_
#define ZQ7STANDARD_TOOLS_ZQ7_EXAMPLE_PRINTER_H_

#include <ZQ7Standard/platform/printers.h>

#include <memory>

namespace ZQ7Tool {

/// One printer by the name of "PDF" that takes every setting and prints nothing, so
/// that an example costs no paper.
std::shared_ptr<ZQ7Standard::PrinterList> ExamplePrinters();

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_EXAMPLE_PRINTER_H_
