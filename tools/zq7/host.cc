#include "host.h"

#include <ZQ7Standard/platform/block_cipher.h>
#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <ZQ7Standard/platform/message_box.h>
#include <ZQ7Standard/platform/recording_printers.h>

#include <random>
#include <string>
#include <system_error>
#include <utility>

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

/// Creates a folder that nobody else may use.
std::filesystem::path NewFolder() {
  const std::filesystem::path parent = std::filesystem::temp_directory_path();
  std::random_device random;
  for (;;) {
    std::filesystem::path folder = parent / ("zq7-" + std::to_string(random()));
    if (!std::filesystem::create_directory(folder)) continue;
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
    return folder;
  }
}

Services MachineServices() {
  return {.clock = SystemClock(),
          .date_convention = SystemDateConvention(),
          .block_cipher = BuiltInBlockCipher()};
}

}  // namespace

Host::Host(const Settings& settings, std::shared_ptr<MessageBox> message_box)
    : services_(settings.example ? ExampleServices() : MachineServices()) {
  if (settings.now) services_.clock = FixedClock(*settings.now);
  if (settings.convention) services_.date_convention = FixedDateConvention(*settings.convention);
  services_.message_box = std::move(message_box);
  if (!settings.example) return;
  example_drive_ = NewFolder();
  std::filesystem::create_directory(example_drive_ / "shop");
  services_.drives = {{'C', example_drive_}};
  services_.printers = RecordingPrinters();
}

Host::~Host() {
  std::error_code ignored;
  if (!example_drive_.empty()) std::filesystem::remove_all(example_drive_, ignored);
}

}  // namespace ZQ7Tool
