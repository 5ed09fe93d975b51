#include <ZQ7Standard/platform/path_text.h>
#include <ZQ7Standard/platform/special_folders.h>
#include <objbase.h>
#include <shlobj.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <memory>

namespace ZQ7Standard {
namespace {

struct FolderRow {
  VirtualFolder folder;
  const KNOWNFOLDERID* known;
};

// Folders that are not here are in no file system. The numbers are macros of the system's here.
constexpr auto kFolders = std::to_array<FolderRow>({
    {VirtualFolder{CSIDL_DESKTOP}, &FOLDERID_Desktop},
    {VirtualFolder{CSIDL_PROGRAMS}, &FOLDERID_Programs},
    {VirtualFolder{CSIDL_PERSONAL}, &FOLDERID_Documents},
    {VirtualFolder{CSIDL_FAVORITES}, &FOLDERID_Favorites},
    {VirtualFolder{CSIDL_STARTUP}, &FOLDERID_Startup},
    {VirtualFolder{CSIDL_RECENT}, &FOLDERID_Recent},
    {VirtualFolder{CSIDL_SENDTO}, &FOLDERID_SendTo},
    {VirtualFolder{CSIDL_STARTMENU}, &FOLDERID_StartMenu},
    {VirtualFolder{12}, &FOLDERID_Documents},  // the system's macro is another number
    {VirtualFolder{CSIDL_MYMUSIC}, &FOLDERID_Music},
    {VirtualFolder{CSIDL_MYVIDEO}, &FOLDERID_Videos},
    {VirtualFolder{CSIDL_DESKTOPDIRECTORY}, &FOLDERID_Desktop},
    {VirtualFolder{CSIDL_NETHOOD}, &FOLDERID_NetHood},
    {VirtualFolder{CSIDL_FONTS}, &FOLDERID_Fonts},
    {VirtualFolder{CSIDL_TEMPLATES}, &FOLDERID_Templates},
    {VirtualFolder{CSIDL_COMMON_STARTMENU}, &FOLDERID_CommonStartMenu},
    {VirtualFolder{CSIDL_COMMON_PROGRAMS}, &FOLDERID_CommonPrograms},
    {VirtualFolder{CSIDL_COMMON_STARTUP}, &FOLDERID_CommonStartup},
    {VirtualFolder{CSIDL_COMMON_DESKTOPDIRECTORY}, &FOLDERID_PublicDesktop},
    {VirtualFolder{CSIDL_APPDATA}, &FOLDERID_RoamingAppData},
    {VirtualFolder{CSIDL_LOCAL_APPDATA}, &FOLDERID_LocalAppData},
    {VirtualFolder{CSIDL_MYPICTURES}, &FOLDERID_Pictures},
});

struct FreeTaskMemory {
  void operator()(wchar_t* memory) const { CoTaskMemFree(memory); }
};

class WindowsSpecialFolders final : public SpecialFolders {
 public:
  Text PathOf(VirtualFolder folder) override {
    const auto* const row = std::ranges::find(kFolders, folder, &FolderRow::folder);
    if (row == kFolders.end()) return {};
    wchar_t* path = nullptr;
    const HRESULT result = SHGetKnownFolderPath(*row->known, KF_FLAG_DONT_VERIFY, nullptr, &path);
    const std::unique_ptr<wchar_t, FreeTaskMemory> owned(path);
    return FAILED(result) ? Text() : PathText(path);
  }
};

}  // namespace

std::shared_ptr<SpecialFolders> SystemSpecialFolders(MachineFiles /*files*/) {
  return std::make_shared<WindowsSpecialFolders>();
}

}  // namespace ZQ7Standard
