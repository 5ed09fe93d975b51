#include <ZQ7Standard/platform/management.h>
#include <ZQ7Standard/platform/path_text.h>
#include <sys/statvfs.h>
#include <time.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <utility>

#include "base/ascii.h"
#include "formats/lines.h"
#include "formats/shell_value.h"
#include "platform/linux/block_devices.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/machine_tree.h"
#include "platform/linux/processors.h"

namespace ZQ7Standard {
namespace {

constexpr std::uint64_t kSector = 512;  // bytes, in /sys
constexpr int kFirstTmYear = 1900;

using VolumeStatus = struct statvfs;

/// What a property is read from: an instance, by the name that its class has for it.
using ReadProperty = Text (*)(const MachineTree& tree, const std::string& instance);
using FindInstances = std::vector<std::string> (*)(const MachineTree& tree);
using Convert = Text (*)(std::string_view content);

/// A property is read from a file, whose "*" is the instance and whose content may be converted, or
/// by a function.
struct PropertyRow {
  std::string_view name;
  std::string_view file;
  Convert convert = CleanText;
  ReadProperty read = nullptr;
};

struct ClassRow {
  std::string_view name;
  FindInstances find;
  std::span<const PropertyRow> properties;
};

Text Decimal(std::uint64_t number) {
  return FromUtf8(std::to_string(number));
}

/// The number that a text begins with after blanks; nullopt if there is none.
std::optional<std::uint64_t> NumberOf(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  std::uint64_t number = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
  return end.ec == std::errc() ? std::optional(number) : std::nullopt;
}

// --- Conversions of a file's content ---

Text MemoryBytes(std::string_view meminfo) {
  const auto kilobytes = NumberOf(LineAfter(meminfo, "MemTotal:").value_or(""));
  return kilobytes ? Decimal(*kilobytes * 1024) : Text();
}

Text SectorBytes(std::string_view size) {
  const auto sectors = NumberOf(size);
  return sectors ? Decimal(*sectors * kSector) : Text();
}

Text SystemName(std::string_view os_release) {
  return CleanText(ShellValue(LineAfter(os_release, "PRETTY_NAME=").value_or("")).value_or(""));
}

Text UpperCase(std::string_view address) {
  Text text = CleanText(address);
  std::ranges::transform(text, text.begin(), AsciiUpper);
  return text;
}

/// A moment as yyyymmddHHMMSS.ffffff and the minutes from UTC, "+420".
Text MomentText(time_t moment) {
  tm local{};
  if (localtime_r(&moment, &local) == nullptr) return {};
  Text text;
  AppendNumber(text, local.tm_year + kFirstTmYear, 4);
  AppendNumber(text, local.tm_mon + 1, 2);
  AppendNumber(text, local.tm_mday, 2);
  AppendNumber(text, local.tm_hour, 2);
  AppendNumber(text, local.tm_min, 2);
  AppendNumber(text, local.tm_sec, 2);
  const int offset = static_cast<int>(local.tm_gmtoff / 60);
  text += offset < 0 ? u".000000-" : u".000000+";
  AppendNumber(text, std::abs(offset), 3);
  return text;
}

Text BootMoment(std::string_view stat) {
  const auto seconds = NumberOf(LineAfter(stat, "btime ").value_or(""));
  return seconds ? MomentText(static_cast<time_t>(*seconds)) : Text();
}

// --- Instances ---

/// The machine itself, its board and so on, of which there is one.
std::vector<std::string> One(const MachineTree& /*tree*/) {
  return {""};
}

/// Disks of their own, not what is made of them or of memory, and no optical drives.
std::vector<std::string> Disks(const MachineTree& tree) {
  std::vector<std::string> names = tree.Names("/sys/block");
  std::erase_if(names, [&](const std::string& name) {
    return name.starts_with("sr") || !tree.Exists("/sys/block/" + name + "/device");
  });
  return names;
}

/// File systems on block devices, each once, by the folder where they are mounted.
std::vector<std::string> Volumes(const MachineTree& tree) {
  std::vector<std::string> points;
  std::set<std::string> sources;
  for (const Mount& mount : MountsOf(tree)) {
    const bool whole = mount.top == "/" || mount.type == "btrfs";
    const bool on_device =
        mount.source.starts_with("/dev/") && !mount.source.starts_with("/dev/loop");
    if (!whole || !on_device || !IsLocal(mount)) continue;
    if (sources.insert(mount.source).second) points.push_back(mount.point);
  }
  return points;
}

std::vector<std::string> Processors(const MachineTree& tree) {
  std::vector<std::string> numbers;
  const std::size_t count = ReadProcessors(tree.Read("/proc/cpuinfo")).size();
  for (std::size_t i = 0; i < count; ++i) numbers.push_back(std::to_string(i));
  return numbers;
}

/// By index, which is the order in which the system found them.
std::vector<std::string> Adapters(const MachineTree& tree) {
  std::vector<std::pair<std::uint64_t, std::string>> adapters;
  for (const std::string& name : tree.Names("/sys/class/net")) {
    const auto index = NumberOf(tree.Read("/sys/class/net/" + name + "/ifindex"));
    if (index && name != "lo") adapters.emplace_back(*index, name);
  }
  std::ranges::sort(adapters);
  std::vector<std::string> names;
  names.reserve(adapters.size());
  for (auto& [index, name] : adapters) names.push_back(std::move(name));
  return names;
}

// --- Properties that no single file tells ---

Text ComputerName(const MachineTree& tree, const std::string& /*instance*/) {
  return ComputerNameOf(tree);
}

template <Text Processor::*Property>
Text OfProcessor(const MachineTree& tree, const std::string& instance) {
  const auto processors = ReadProcessors(tree.Read("/proc/cpuinfo"));
  const std::size_t number = NumberOf(instance).value_or(0);
  return number < processors.size() ? processors[number].*Property : Text();
}

Text DiskSerialNumber(const MachineTree& tree, const std::string& disk) {
  return DiskSerial(tree, Utf8(tree.Line("/sys/block/" + disk + "/dev")));
}

/// "C:" for the root folder, which a drive without a folder of its own is.
Text VolumePath(const MachineTree& /*tree*/, const std::string& point) {
  return point == "/" ? u"C:" : PathText(point);
}

Text VolumeSerialNumber(const MachineTree& tree, const std::string& point) {
  return VolumeSerialOf(tree, DeviceOf(tree, FindMount(tree, point)));
}

template <fsblkcnt_t VolumeStatus::*Blocks>
Text BlockBytes(const MachineTree& tree, const std::string& point) {
  VolumeStatus status{};
  const std::string native = tree.Native(point);
  if (statvfs(native.c_str(), &status) == 0) return Decimal((status.*Blocks) * status.f_frsize);
  if (MeansMissing(errno) || MeansDenied(errno)) return {};
  throw FileError(errno, "size", PathText(point), native);
}

Text Name(const MachineTree& /*tree*/, const std::string& instance) {
  return CleanText(instance);
}

constexpr auto kComputer = std::to_array<PropertyRow>({
    {"Name", {}, {}, ComputerName},
    {"Manufacturer", "/sys/class/dmi/id/sys_vendor"},
    {"Model", "/sys/class/dmi/id/product_name"},
    {"TotalPhysicalMemory", "/proc/meminfo", MemoryBytes},
});
constexpr auto kBios = std::to_array<PropertyRow>({
    {"SerialNumber", "/sys/class/dmi/id/product_serial"},
    {"SMBIOSBIOSVersion", "/sys/class/dmi/id/bios_version"},
});
constexpr auto kBoard = std::to_array<PropertyRow>({
    {"SerialNumber", "/sys/class/dmi/id/board_serial"},
    {"Product", "/sys/class/dmi/id/board_name"},
});
constexpr auto kProcessor = std::to_array<PropertyRow>({
    {"Name", {}, {}, OfProcessor<&Processor::name>},
    {"NumberOfCores", {}, {}, OfProcessor<&Processor::cores>},
    {"ProcessorId", {}, {}, OfProcessor<&Processor::id>},
});
constexpr auto kDisk = std::to_array<PropertyRow>({
    {"Model", "/sys/block/*/device/model"},
    {"SerialNumber", {}, {}, DiskSerialNumber},
    {"Size", "/sys/block/*/size", SectorBytes},
});
constexpr auto kVolume = std::to_array<PropertyRow>({
    {"DeviceID", {}, {}, VolumePath},
    {"Size", {}, {}, BlockBytes<&VolumeStatus::f_blocks>},
    {"FreeSpace", {}, {}, BlockBytes<&VolumeStatus::f_bavail>},
    {"VolumeSerialNumber", {}, {}, VolumeSerialNumber},
});
constexpr auto kAdapter = std::to_array<PropertyRow>({
    {"MACAddress", "/sys/class/net/*/address", UpperCase},
    {"NetConnectionID", {}, {}, Name},
});
constexpr auto kSystem = std::to_array<PropertyRow>({
    {"Caption", "/etc/os-release", SystemName},
    {"Version", "/proc/sys/kernel/osrelease"},
    {"LastBootUpTime", "/proc/stat", BootMoment},
});

constexpr auto kClasses = std::to_array<ClassRow>({
    {"Win32_BaseBoard", One, kBoard},
    {"Win32_BIOS", One, kBios},
    {"Win32_ComputerSystem", One, kComputer},
    {"Win32_DiskDrive", Disks, kDisk},
    {"Win32_LogicalDisk", Volumes, kVolume},
    {"Win32_NetworkAdapter", Adapters, kAdapter},
    {"Win32_OperatingSystem", One, kSystem},
    {"Win32_Processor", Processors, kProcessor},
});

Text ReadText(const MachineTree& tree, const PropertyRow& property, const std::string& instance) {
  if (property.read != nullptr) return property.read(tree, instance);
  std::string file(property.file);
  const std::size_t star = file.find('*');
  if (star != std::string::npos) file.replace(star, 1, instance);
  return property.convert(tree.Read(file));
}

class LinuxManagement final : public Management {
 public:
  explicit LinuxManagement(MachineFiles files) : tree_(std::move(files.root)) {}

  std::vector<ManagementClass> Classes() override {
    std::vector<ManagementClass> classes;
    for (const ClassRow& row : kClasses) {
      classes.push_back({row.name, {}});
      for (const PropertyRow& property : row.properties) {
        classes.back().properties.push_back(property.name);
      }
    }
    return classes;
  }

  std::vector<std::vector<Text>> Read(std::string_view class_name,
                                      std::span<const std::string_view> properties) override {
    const auto* const row = std::ranges::find(kClasses, class_name, &ClassRow::name);
    if (row == kClasses.end()) return {};
    std::vector<std::vector<Text>> instances;
    for (const std::string& instance : row->find(tree_)) {
      std::vector<Text>& texts = instances.emplace_back();
      for (const std::string_view name : properties) {
        const auto property = std::ranges::find(row->properties, name, &PropertyRow::name);
        const bool known = property != row->properties.end();
        texts.push_back(known ? ReadText(tree_, *property, instance) : Text());
      }
    }
    return instances;
  }

 private:
  MachineTree tree_;
};

}  // namespace

std::shared_ptr<Management> SystemManagement(MachineFiles files) {
  return std::make_shared<LinuxManagement>(std::move(files));
}

}  // namespace ZQ7Standard
