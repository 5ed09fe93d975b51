#ifndef ZQ7STANDARD_MODULES_PRINTING_LINUX_PRINTERS_H_
#define ZQ7STANDARD_MODULES_PRINTING_LINUX_PRINTERS_H_

#include "platform/modules.h"

namespace ZQ7Standard {

/// What the module makes: the printers that `SystemPrinters` tells of.
extern const PrintingFunctions kPrintingFunctions;

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_LINUX_PRINTERS_H_
