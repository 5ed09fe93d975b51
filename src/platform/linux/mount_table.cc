#include "platform/linux/mount_table.h"

#include <algorithm>
#include <array>

#include "formats/lines.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kOctalDigits = 3;

// File systems without a block device that the kernel has to itself.
constexpr auto kOwnTypes = std::to_array<std::string_view>(
    {"btrfs", "devtmpfs", "overlay", "proc", "ramfs", "rootfs", "sysfs", "tmpfs", "zfs"});

constexpr bool IsOctal(char c) {
  return c >= '0' && c <= '7';
}

/// A field with its escapes, such as "\040" for a blank, replaced.
std::string Unescaped(std::string_view field) {
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    const std::string_view digits = field.substr(i + 1, kOctalDigits);
    if (field[i] == '\\' && digits.size() == kOctalDigits && std::ranges::all_of(digits, IsOctal)) {
      text += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + (digits[2] - '0'));
      i += kOctalDigits;
    } else {
      text += field[i];
    }
  }
  return text;
}

std::vector<std::string_view> Fields(std::string_view line) {
  std::vector<std::string_view> fields;
  while (!line.empty()) {
    const std::size_t end = std::min(line.find(' '), line.size());
    if (end > 0) fields.push_back(line.substr(0, end));
    line.remove_prefix(std::min(end + 1, line.size()));
  }
  return fields;
}

bool Holds(std::string_view folder, std::string_view path) {
  if (folder == "/") return path.starts_with('/');
  return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

}  // namespace

std::vector<Mount> ReadMounts(std::string_view mountinfo) {
  std::vector<Mount> mounts;
  while (!mountinfo.empty()) {
    const std::vector<std::string_view> fields = Fields(TakeLine(mountinfo));
    // Any number of fields may come before the "-", after which are the type and the source.
    const auto dash = std::ranges::find(fields, "-");
    if (dash - fields.begin() < 6 || fields.end() - dash < 3) continue;
    mounts.push_back({.device = std::string(fields[2]),
                      .top = Unescaped(fields[3]),
                      .point = Unescaped(fields[4]),
                      .type = std::string(dash[1]),
                      .source = Unescaped(dash[2])});
  }
  return mounts;
}

const Mount* MountOf(const std::vector<Mount>& mounts, std::string_view path) {
  const Mount* found = nullptr;
  for (const Mount& mount : mounts) {
    // Of two mounts at one point the later hides the other.
    const bool longer = found == nullptr || mount.point.size() >= found->point.size();
    if (longer && Holds(mount.point, path)) found = &mount;
  }
  return found;
}

bool IsLocal(const Mount& mount) {
  if (mount.type.starts_with("fuse")) return false;
  return mount.source.starts_with("/dev/") ||
         std::ranges::find(kOwnTypes, mount.type) != kOwnTypes.end();
}

}  // namespace ZQ7Standard
