#ifndef ZQ7STANDARD_MODULES_PRINTING_LINUX_PRINTERS_H_
#define ZQ7STANDARD_MODULES_PRINTING_LINUX_PRINTERS_H_

#include "platform/modules.h"

namespace ZQ7Standard {

/// The functions of the module.
extern const PrintingFunctions kPrintingFunctions;

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_LINUX_PRINTERS_H_
