#include "network/linux/mail_transport.h"
#include "platform/module_answer.h"

extern "C" __attribute__((visibility("default"))) const ZQ7ModuleAnswer* zq7standard_module() {
  static const ZQ7ModuleAnswer answer = {ZQ7Standard::kModuleVersion, ZQ7Standard::kModuleAbi,
                                         &ZQ7Standard::kNetworkFunctions};
  return &answer;
}
