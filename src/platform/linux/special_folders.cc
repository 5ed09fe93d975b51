#include <ZQ7Standard/platform/path_text.h>
#include <ZQ7Standard/platform/special_folders.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "formats/shell_value.h"
#include "platform/linux/environment.h"
#include "platform/linux/machine_tree.h"

namespace ZQ7Standard {
namespace {

/// What a folder's path begins with.
enum class Base {
  kUserSettings,  ///< $XDG_CONFIG_HOME
  kUserData,      ///< $XDG_DATA_HOME
  kUserFolder,    ///< what user-dirs.dirs names
  kMachine,       ///< the root
};

struct FolderRow {
  VirtualFolder folder;
  Base base;
  std::string_view rest;
};

// Folders that are not here have no counterpart.
constexpr auto kFolders = std::to_array<FolderRow>({
    {CSIDL_DESKTOP, Base::kUserFolder, "DESKTOP"},
    {CSIDL_DESKTOPDIRECTORY, Base::kUserFolder, "DESKTOP"},
    {CSIDL_PERSONAL, Base::kUserFolder, "DOCUMENTS"},
    {CSIDL_MYDOCUMENTS, Base::kUserFolder, "DOCUMENTS"},
    {CSIDL_MYMUSIC, Base::kUserFolder, "MUSIC"},
    {CSIDL_MYVIDEO, Base::kUserFolder, "VIDEOS"},
    {CSIDL_MYPICTURES, Base::kUserFolder, "PICTURES"},
    {CSIDL_TEMPLATES, Base::kUserFolder, "TEMPLATES"},
    {CSIDL_APPDATA, Base::kUserSettings, ""},
    {CSIDL_STARTUP, Base::kUserSettings, "autostart"},
    {CSIDL_LOCAL_APPDATA, Base::kUserData, ""},
    {CSIDL_PROGRAMS, Base::kUserData, "applications"},
    {CSIDL_STARTMENU, Base::kUserData, "applications"},
    {CSIDL_FONTS, Base::kMachine, "/usr/share/fonts"},
    {CSIDL_COMMON_PROGRAMS, Base::kMachine, "/usr/share/applications"},
    {CSIDL_COMMON_STARTMENU, Base::kMachine, "/usr/share/applications"},
    {CSIDL_COMMON_STARTUP, Base::kMachine, "/etc/xdg/autostart"},
});

using std::filesystem::path;

/// The folder that a variable names, or `standard` in the home folder; empty if there is neither.
path BaseFolder(const char* variable, const char* standard) {
  path folder = FolderFromEnvironment(variable);
  if (!folder.empty()) return folder;
  const path home = FolderFromEnvironment("HOME");
  return home.empty() ? home : home / standard;
}

path SettingsFolder() {
  return BaseFolder("XDG_CONFIG_HOME", ".config");
}

path Below(const path& base, std::string_view name) {
  return base.empty() || name.empty() ? base : base / name;
}

/// A folder by user-dirs.dirs; without an entry it is the home folder, as programs of the desktop
/// take it, and "Desktop" in it.
path NamedFolder(const MachineTree& tree, std::string_view name) {
  const path home = FolderFromEnvironment("HOME");
  if (home.empty()) return {};
  const std::string settings = tree.Read(SettingsFolder() / "user-dirs.dirs");
  if (const auto named = UserFolder(settings, name, home.native())) return *named;
  return name == "DESKTOP" ? home / "Desktop" : home;
}

path FolderOf(const MachineTree& tree, const FolderRow& row) {
  switch (row.base) {
    case Base::kUserSettings:
      return Below(SettingsFolder(), row.rest);
    case Base::kUserData:
      return Below(BaseFolder("XDG_DATA_HOME", ".local/share"), row.rest);
    case Base::kUserFolder:
      return NamedFolder(tree, row.rest);
    case Base::kMachine:
      return row.rest;
  }
  return {};
}

class LinuxSpecialFolders final : public SpecialFolders {
 public:
  explicit LinuxSpecialFolders(MachineFiles files) : tree_(std::move(files.root)) {}

  Text PathOf(VirtualFolder folder) override {
    const auto* const row = std::ranges::find(kFolders, folder, &FolderRow::folder);
    if (row == kFolders.end()) return {};
    const path found = FolderOf(tree_, *row);
    return found.empty() ? Text() : PathText(found);
  }

 private:
  MachineTree tree_;
};

}  // namespace

std::shared_ptr<SpecialFolders> SystemSpecialFolders(MachineFiles files) {
  return std::make_shared<LinuxSpecialFolders>(std::move(files));
}

}  // namespace ZQ7Standard
