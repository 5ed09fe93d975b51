#include <ZQ7Standard/platform/machine.h>

#include <utility>

#include "platform/linux/block_devices.h"
#include "platform/linux/native_path.h"

namespace ZQ7Standard {
namespace {

class LinuxMachine final : public Machine {
 public:
  explicit LinuxMachine(MachineFiles files)
      : tree_(std::move(files.root)), drives_(std::move(files.drives)) {}

  Text ComputerName() override { return ComputerNameOf(tree_); }
  Text DiskSerialNumber(TextView path) override { return DiskSerial(tree_, Device(path)); }
  Text VolumeSerialNumber(TextView path) override { return VolumeSerialOf(tree_, Device(path)); }

 private:
  std::string Device(TextView path) const {
    return DeviceOf(tree_, FindMount(tree_, NativePath(path, drives_)));
  }

  MachineTree tree_;
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<Machine> SystemMachine(MachineFiles files) {
  return std::make_shared<LinuxMachine>(std::move(files));
}

}  // namespace ZQ7Standard
