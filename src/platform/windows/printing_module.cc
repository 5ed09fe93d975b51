#include "platform/modules.h"
#include "platform/windows/pictures.h"
#include "platform/windows/printers.h"

namespace ZQ7Standard {

/// Here it is no module: the system's own libraries are always there.
const ModuleOf<PrintingFunctions>& PrintingModule() {
  static const PrintingFunctions functions = {.system_printers = NewPrinters,
                                              .to_jpeg = PictureAsJpeg};
  static const ModuleOf<PrintingFunctions> linked = {&functions};
  return linked;
}

}  // namespace ZQ7Standard
