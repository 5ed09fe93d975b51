#include "platform/linux/block_devices.h"

#include <filesystem>
#include <system_error>

#include "formats/lines.h"
#include "formats/volume_serial.h"

namespace ZQ7Standard {
namespace {

constexpr int kMostLinks = 40;
constexpr int kMostLayers = 16;  // such as a volume on an array of partitions

std::string NameIn(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

std::string WithoutBlanks(std::string text) {
  text.erase(0, text.find_first_not_of(" \t\r\n"));
  text.erase(text.find_last_not_of(" \t\r\n") + 1);
  return text;
}

/// What udev found out about a device.
Text UdevText(const MachineTree& tree, const std::string& device, std::string_view name) {
  const std::string known = tree.Read("/run/udev/data/b" + device);
  return CleanText(LineAfter(known, "E:" + std::string(name) + "=").value_or(""));
}

/// The folder in /sys of the device of that number; empty if there is none.
std::string SysFolder(const MachineTree& tree, const std::string& device) {
  return device.empty() ? "" : tree.Resolved("/sys/dev/block/" + device);
}

/// The folder in /sys of the first disk below that of a device.
std::string DiskFolder(const MachineTree& tree, std::string folder) {
  for (int layer = 0; layer < kMostLayers && !folder.empty(); ++layer) {
    if (tree.Exists(folder + "/partition")) folder = folder.substr(0, folder.rfind('/'));
    const std::vector<std::string> slaves = tree.Names(folder + "/slaves");
    if (slaves.empty()) return folder;
    folder = tree.Resolved(folder.append("/slaves/").append(slaves.front()));
  }
  return folder;
}

/// The path after the first of its links is followed; empty if it has none that may be followed.
std::string FollowedOnce(const MachineTree& tree, const std::vector<Mount>& mounts,
                         const std::string& path) {
  for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
    const std::string part = path.substr(0, end);
    const Mount* const mount = MountOf(mounts, part);
    if (mount != nullptr && !IsLocal(*mount)) return {};
    const bool mounted = mount != nullptr && mount->point == part;
    const auto link = mounted ? std::nullopt : tree.Link(part);
    if (link) {
      const auto target = std::filesystem::path(part).parent_path() / *link;
      return target.native() + path.substr(part.size());
    }
    if (end == std::string::npos) return {};
  }
}

std::string Normal(const std::filesystem::path& path) {
  std::string normal = path.lexically_normal();
  while (normal.size() > 1 && normal.ends_with('/')) normal.pop_back();
  return normal;
}

/// The identifier of the volume in /dev/disk/by-uuid, where links have them as names.
std::string IdentifierByName(const MachineTree& tree, const std::string& name) {
  const std::string folder = "/dev/disk/by-uuid/";
  for (const std::string& identifier : tree.Names(folder)) {
    const auto link = tree.Link(folder + identifier);
    if (link && NameIn(*link) == name) return identifier;
  }
  return {};
}

}  // namespace

std::vector<Mount> MountsOf(const MachineTree& tree) {
  return ReadMounts(tree.Read("/proc/self/mountinfo"));
}

Mount FindMount(const MachineTree& tree, const std::string& path) {
  const std::vector<Mount> mounts = MountsOf(tree);
  std::error_code error;
  std::string at = Normal(std::filesystem::absolute(path.empty() ? "." : path, error));
  for (int i = 0; i < kMostLinks; ++i) {
    const std::string followed = FollowedOnce(tree, mounts, at);
    if (followed.empty()) break;
    at = Normal(followed);
  }
  const Mount* const mount = MountOf(mounts, at);
  return mount == nullptr ? Mount() : *mount;
}

std::string DeviceOf(const MachineTree& tree, const Mount& mount) {
  if (mount.device.empty() || !mount.device.starts_with("0:")) return mount.device;
  // btrfs has numbers of its own, but tells the name of its device, which may be a link.
  if (!mount.source.starts_with("/dev/")) return {};
  const std::string name = NameIn(tree.Link(mount.source).value_or(mount.source));
  return WithoutBlanks(tree.Read("/sys/class/block/" + name + "/dev"));
}

Text DiskSerial(const MachineTree& tree, const std::string& device) {
  const std::string folder = DiskFolder(tree, SysFolder(tree, device));
  if (folder.empty()) return {};
  const std::string disk = WithoutBlanks(tree.Read(folder + "/dev"));
  if (Text serial = UdevText(tree, disk, "ID_SERIAL_SHORT"); !serial.empty()) return serial;
  if (Text serial = tree.Line(folder + "/serial"); !serial.empty()) return serial;
  return tree.Line(folder + "/device/serial");
}

Text VolumeSerialOf(const MachineTree& tree, const std::string& device) {
  if (device.empty()) return {};
  const std::string identifier = Utf8(UdevText(tree, device, "ID_FS_UUID"));
  if (!identifier.empty()) return VolumeSerial(identifier);
  const std::string folder = SysFolder(tree, device);
  return folder.empty() ? Text() : VolumeSerial(IdentifierByName(tree, NameIn(folder)));
}

}  // namespace ZQ7Standard
