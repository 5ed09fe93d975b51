#include "platform/modules.h"

namespace ZQ7Standard {

const ModuleOf<NetworkFunctions>& NetworkModule() {
  static const ModuleOf<NetworkFunctions> absent = {.problem =
                                                        "the library was built without mail"};
  return absent;
}

}  // namespace ZQ7Standard
