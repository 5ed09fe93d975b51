#ifndef ZQ7STANDARD_PLATFORM_MACHINE_H_
#define ZQ7STANDARD_PLATFORM_MACHINE_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/machine_files.h>

#include <memory>

namespace ZQ7Standard {

/// Tells machines, disks and volumes apart. What a machine does not have, or does not tell
/// the user, is the empty text. Paths are path texts.
class ZQ7STANDARD_EXPORT Machine {
 public:
  virtual ~Machine();

  /// The name of the machine, without its domain.
  virtual Text ComputerName() = 0;

  /// The serial number of the disk that holds `path`, as its maker wrote it.
  virtual Text DiskSerialNumber(TextView path) = 0;

  /// The serial number of the volume that holds `path`, eight hexadecimal digits.
  virtual Text VolumeSerialNumber(TextView path) = 0;
};

/// The machine itself. Nothing on a network is touched.
ZQ7STANDARD_EXPORT std::shared_ptr<Machine> SystemMachine(MachineFiles files = {});

/// The same for every path.
struct MachineFacts {
  Text computer_name = {};
  Text disk_serial_number = {};
  Text volume_serial_number = {};
};

/// A machine that tells these.
ZQ7STANDARD_EXPORT std::shared_ptr<Machine> FixedMachine(MachineFacts facts);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_MACHINE_H_
