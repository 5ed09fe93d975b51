#include <ZQ7Standard/platform/machine.h>
#include <windows.h>
#include <winioctl.h>

#include <array>
#include <cstddef>
#include <string>
#include <utility>

#include "formats/clean_text.h"
#include "platform/windows/handle.h"
#include "platform/windows/native_path.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

constexpr DWORD kLongestPath = 32'768;

/// Whether the path is one of a share, which only the network tells more of.
bool IsShare(const std::wstring& path) {
  const bool is_device = path.starts_with(LR"(\\?\)") || path.starts_with(LR"(\\.\)");
  return path.starts_with(LR"(\\?\UNC\)") || (path.starts_with(LR"(\\)") && !is_device);
}

/// The root of the volume that holds a path, ending in "\"; empty if it is on a network.
std::wstring VolumeOf(const std::wstring& native) {
  if (IsShare(native)) return {};
  std::wstring root(kLongestPath, L'\0');
  if (GetVolumePathNameW(native.empty() ? L"." : native.c_str(), root.data(), kLongestPath) == 0) {
    return {};
  }
  root.resize(root.find(L'\0'));
  return IsShare(root) || GetDriveTypeW(root.c_str()) == DRIVE_REMOTE ? std::wstring() : root;
}

/// Opens a device only to ask about it, which any user may.
Handle OpenDevice(const std::wstring& name) {
  return FileHandle(CreateFileW(name.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                OPEN_EXISTING, 0, nullptr));
}

/// What a device answers, as much as `Answer` holds; false if it does not know.
template <typename Answer>
bool Ask(const Handle& device, DWORD code, const void* question, DWORD size, Answer& answer) {
  DWORD written = 0;
  return device && (DeviceIoControl(device.get(), code, const_cast<void*>(question), size, &answer,
                                    sizeof answer, &written, nullptr) != 0 ||
                    GetLastError() == ERROR_MORE_DATA);
}

/// The first disk under a volume; null if there is none.
Handle DiskUnder(const std::wstring& volume) {
  std::array<wchar_t, 64> name{};  // \\?\Volume{...}\ of 49 characters
  if (GetVolumeNameForVolumeMountPointW(volume.c_str(), name.data(), name.size()) == 0) return {};
  std::wstring device = name.data();
  device.pop_back();  // without the "\" it is the device, not its root folder
  VOLUME_DISK_EXTENTS extents{};
  if (!Ask(OpenDevice(device), IOCTL_VOLUME_GET_VOLUME_DISK_EXTENTS, nullptr, 0, extents)) {
    return {};
  }
  return OpenDevice(LR"(\\.\PhysicalDrive)" + std::to_wstring(extents.Extents[0].DiskNumber));
}

Text SerialOf(const Handle& disk) {
  const STORAGE_PROPERTY_QUERY question = {.PropertyId = StorageDeviceProperty,
                                           .QueryType = PropertyStandardQuery,
                                           .AdditionalParameters = {}};
  struct {
    STORAGE_DEVICE_DESCRIPTOR descriptor;
    std::array<char, 1024> more;
  } answer{};
  if (!Ask(disk, IOCTL_STORAGE_QUERY_PROPERTY, &question, sizeof question, answer)) return {};
  const std::string_view bytes(reinterpret_cast<const char*>(&answer), sizeof answer);
  const DWORD offset = answer.descriptor.SerialNumberOffset;
  if (offset == 0 || offset >= bytes.size()) return {};
  const std::string_view serial = bytes.substr(offset);
  return CleanText(FromUtf8(serial.substr(0, serial.find('\0'))));
}

Text EightDigits(DWORD number) {
  constexpr TextView kDigits = u"0123456789ABCDEF";
  Text digits;
  for (int shift = 28; shift >= 0; shift -= 4) digits += kDigits[number >> shift & 15U];
  return digits;
}

class WindowsMachine final : public Machine {
 public:
  explicit WindowsMachine(DriveMap drives) : drives_(std::move(drives)) {}

  Text ComputerName() override {
    std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
    auto size = static_cast<DWORD>(name.size());
    if (GetComputerNameW(name.data(), &size) == 0) return {};
    return FromWide({name.data(), size});
  }

  Text DiskSerialNumber(TextView path) override {
    const std::wstring volume = VolumeOf(NativePath(path, drives_));
    return volume.empty() ? Text() : SerialOf(DiskUnder(volume));
  }

  Text VolumeSerialNumber(TextView path) override {
    const std::wstring volume = VolumeOf(NativePath(path, drives_));
    DWORD serial = 0;
    if (volume.empty() || GetVolumeInformationW(volume.c_str(), nullptr, 0, &serial, nullptr,
                                                nullptr, nullptr, 0) == 0) {
      return {};
    }
    return EightDigits(serial);
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<Machine> SystemMachine(MachineFiles files) {
  return std::make_shared<WindowsMachine>(std::move(files.drives));
}

}  // namespace ZQ7Standard
