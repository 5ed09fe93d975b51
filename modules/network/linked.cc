#include "network/linux/mail_transport.h"

namespace ZQ7Standard {

/// For a core that has the module linked in.
const ModuleOf<NetworkFunctions>& NetworkModule() {
  static const ModuleOf<NetworkFunctions> linked = {&kNetworkFunctions};
  return linked;
}

}  // namespace ZQ7Standard
