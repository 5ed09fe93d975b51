#include "printing/linux/printers.h"

namespace ZQ7Standard {

/// For a core that has the module linked in.
const ModuleOf<PrintingFunctions>& PrintingModule() {
  static const ModuleOf<PrintingFunctions> linked = {&kPrintingFunctions};
  return linked;
}

}  // namespace ZQ7Standard
