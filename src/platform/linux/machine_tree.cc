#include "platform/linux/machine_tree.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "formats/clean_text.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/system_calls.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kLargestFile = std::size_t{4} << 20U;
constexpr std::size_t kMostNames = 100'000;

/// Files of hardware that is not there, or that cannot tell, fail when they are opened or read.
bool MeansUnknown(int error) {
  return MeansMissing(error) || MeansDenied(error) || error == ENODEV || error == ENXIO ||
         error == EOPNOTSUPP;
}

}  // namespace

Text CleanText(std::string_view bytes) {
  return CleanText(FromUtf8(bytes.substr(0, 1024)));  // more than hosts get
}

std::string MachineTree::Read(const std::string& path) const {
  const std::string native = Native(path);
  const auto fail = [&](int error) -> std::string {
    if (MeansUnknown(error)) return {};
    throw FileError(error, "read", FromUtf8(path), native);
  };
  const Descriptor file(open(native.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  if (!file) return fail(errno);
  struct stat status {};
  if (fstat(file.Number(), &status) != 0) return fail(errno);
  if (!S_ISREG(status.st_mode)) return {};
  std::string content;
  std::array<char, 16'384> part;
  while (content.size() < kLargestFile) {
    const auto got = Uninterrupted([&] { return read(file.Number(), part.data(), part.size()); });
    if (got < 0) return fail(errno);
    if (got == 0) break;
    content.append(part.data(), static_cast<std::size_t>(got));
  }
  return content;
}

std::vector<std::string> MachineTree::Names(const std::string& folder) const {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(Native(folder), error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    if (names.size() == kMostNames) break;
    names.push_back(entry->path().filename());
  }
  std::ranges::sort(names);
  return names;
}

bool MachineTree::Exists(const std::string& path) const {
  std::error_code error;
  return std::filesystem::exists(Native(path), error);
}

std::optional<std::string> MachineTree::Link(const std::string& path) const {
  std::error_code error;
  const auto target = std::filesystem::read_symlink(Native(path), error);
  return error ? std::nullopt : std::optional(target.native());
}

std::string MachineTree::Resolved(const std::string& path) const {
  std::error_code error;
  const std::string root = std::filesystem::canonical(Native("/"), error);
  if (error) return {};
  const std::string resolved = std::filesystem::canonical(Native(path), error);
  if (error) return {};
  return root == "/" ? resolved : resolved.substr(std::min(root.size(), resolved.size()));
}

Text ComputerNameOf(const MachineTree& tree) {
  const Text name = tree.Line("/proc/sys/kernel/hostname");
  return name.substr(0, name.find(u'.'));
}

}  // namespace ZQ7Standard
