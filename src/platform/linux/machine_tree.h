#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_MACHINE_TREE_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_MACHINE_TREE_H_

#include <ZQ7Standard/Types.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ZQ7Standard {

/// `CleanText` of a text in UTF-8.
Text CleanText(std::string_view bytes);

/// The files in which Linux describes a machine. Paths are native, absolute and those of that
/// machine, whose root may be any folder; its symbolic links are relative, or stay below the root.
class MachineTree {
 public:
  explicit MachineTree(std::filesystem::path root) : root_(std::move(root)) {}

  /// The content of a file, 4 MiB of it at most; empty if there is none, or the user may not read
  /// it. Raises 57 or 75 if reading fails.
  std::string Read(const std::string& path) const;

  /// `Read` as a text for hosts.
  Text Line(const std::string& path) const { return CleanText(Read(path)); }

  /// The names in a folder in ascending order; empty if there is no such folder.
  std::vector<std::string> Names(const std::string& folder) const;

  bool Exists(const std::string& path) const;

  /// What a symbolic link holds; nullopt if `path` is no link.
  std::optional<std::string> Link(const std::string& path) const;

  /// The path without symbolic links; empty if nothing is there.
  std::string Resolved(const std::string& path) const;

  /// Where the file is on this machine.
  std::string Native(const std::string& path) const { return root_.native() + path; }

 private:
  std::filesystem::path root_;
};

/// The name of the machine, without its domain.
Text ComputerNameOf(const MachineTree& tree);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_MACHINE_TREE_H_
