#include "platform/modules.h"

namespace ZQ7Standard {

const ModuleOf<PrintingFunctions>& PrintingModule() {
  static const ModuleOf<PrintingFunctions> absent = {.problem =
                                                         "the library was built without printing"};
  return absent;
}

}  // namespace ZQ7Standard
