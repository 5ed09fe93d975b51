#ifndef ZQ7STANDARD_TOOLS_ZQ7_HOST_H_
#define ZQ7STANDARD_TOOLS_ZQ7_HOST_H_

#include <ZQ7Standard/automation/invoke.h>

#include <memory>
#include <optional>
#include <string>

namespace ZQ7Tool {

/// What a command line sets in place of the machine.
struct Settings {
  std::optional<ZQ7Standard::OleDate> now = std::nullopt;
  std::optional<ZQ7Standard::DateConvention> convention = std::nullopt;
  bool example = false;  ///< the services of the catalogue's examples
};

/// The services that the tool gives to the classes; `message_box` hears their messages.
ZQ7Standard::Automation::HostServices ServicesFor(
    const Settings& settings, std::shared_ptr<ZQ7Standard::MessageBox> message_box);

/// The block cipher that the library was built with; empty for none.
ZQ7Standard::BlockCipherFactory BuiltInBlockCipher();

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_HOST_H_
