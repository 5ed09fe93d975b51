#include "host.h"

#include <utility>

namespace ZQ7Tool {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

HostServices ServicesFor(const Settings& settings, std::shared_ptr<MessageBox> message_box) {
  HostServices services;
  if (settings.example) {
    services = ExampleServices();
  } else {
    services.clock = SystemClock();
    services.date_convention = SystemDateConvention();
    services.block_cipher = BuiltInBlockCipher();
  }
  if (settings.now) services.clock = FixedClock(*settings.now);
  if (settings.convention) services.date_convention = FixedDateConvention(*settings.convention);
  services.message_box = std::move(message_box);
  return services;
}

}  // namespace ZQ7Tool
