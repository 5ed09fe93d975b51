// Services of Windows that are still to be written.
#include <ZQ7Standard/platform/desktop.h>
#include <ZQ7Standard/platform/file_versions.h>
#include <ZQ7Standard/platform/machine.h>
#include <ZQ7Standard/platform/management.h>
#include <ZQ7Standard/platform/programs.h>
#include <ZQ7Standard/platform/serial_port.h>
#include <ZQ7Standard/platform/special_folders.h>
#include <ZQ7Standard/platform/time_servers.h>

#include "base/raise.h"

namespace ZQ7Standard {
namespace {

[[noreturn]] void NotYet() {
  throw RunTimeError(Error::kCannotCreateObject, "not on Windows yet");
}

}  // namespace

std::shared_ptr<Desktop> SystemDesktop(DriveMap /*drives*/) {
  NotYet();
}
std::shared_ptr<FileVersions> SystemFileVersions(MachineFiles /*files*/) {
  NotYet();
}
std::shared_ptr<Machine> SystemMachine(MachineFiles /*files*/) {
  NotYet();
}
std::shared_ptr<Management> SystemManagement(MachineFiles /*files*/) {
  NotYet();
}
std::shared_ptr<Programs> SystemPrograms(DriveMap /*drives*/) {
  NotYet();
}
std::shared_ptr<SerialPort> SystemSerialPort(SerialDevices /*devices*/,
                                             std::chrono::milliseconds /*time_limit*/) {
  NotYet();
}
std::shared_ptr<SpecialFolders> SystemSpecialFolders(MachineFiles /*files*/) {
  NotYet();
}
std::shared_ptr<TimeServers> SystemTimeServers() {
  NotYet();
}

}  // namespace ZQ7Standard
