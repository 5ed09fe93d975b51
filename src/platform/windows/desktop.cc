#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/desktop.h>
// The others need the first.
// clang-format off
#include <windows.h>
#include <sddl.h>
#include <shellapi.h>
// clang-format on

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <string>
#include <utility>

#include "base/ascii.h"
#include "formats/address.h"
#include "platform/windows/com.h"
#include "platform/windows/file_errors.h"
#include "platform/windows/handle.h"
#include "platform/windows/mail_composer.h"
#include "platform/windows/native_path.h"
#include "platform/windows/open_file.h"
#include "platform/windows/system_text.h"
#include "platform/windows/user_session.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

// What the shell would run, or take settings from, rather than show.
constexpr auto kPrograms = std::to_array<TextView>({u".appref-ms", u".application",
                                                    u".bat",       u".chm",
                                                    u".cmd",       u".com",
                                                    u".cpl",       u".exe",
                                                    u".gadget",    u".hlp",
                                                    u".hta",       u".inf",
                                                    u".jar",       u".js",
                                                    u".jse",       u".lnk",
                                                    u".msc",       u".msi",
                                                    u".msp",       u".pif",
                                                    u".ps1",       u".py",
                                                    u".reg",       u".scf",
                                                    u".scr",       u".settingcontent-ms",
                                                    u".url",       u".vb",
                                                    u".vbe",       u".vbs",
                                                    u".ws",        u".wsc",
                                                    u".wsf",       u".wsh"});

bool IsProgram(const std::wstring& native) {
  Text name = FromWide(native);
  name.erase(name.find_last_not_of(u". ") + 1);  // the system passes over them
  const TextView extension = TextView(name).substr(std::min(name.rfind(u'.'), name.size()));
  return std::ranges::any_of(
      kPrograms, [&](TextView program) { return EqualsIgnoringAsciiCase(program, extension); });
}

/// A document or a folder may be opened, but nothing that would run.
void RequireDocument(const std::string& path, const std::wstring& native) {
  const DWORD attributes = GetFileAttributesW(native.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    throw RunTimeError(Error::kInvalidArgument, "there is no file " + path);
  }
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0 && IsProgram(native)) {
    throw RunTimeError(Error::kInvalidArgument, path + " is not a document");
  }
}

void RequireDesktop() {
  if (HasVisibleDesktop()) return;
  throw RunTimeError(Error::kCannotCreateObject, "there is no desktop that a user sees");
}

void OpenByShell(const std::wstring& target) {
  RequireDesktop();
  const ComUse com(COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
  SHELLEXECUTEINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;  // the thread may have no messages
  info.lpFile = target.c_str();
  info.nShow = SW_SHOWNORMAL;
  if (ShellExecuteExW(&info) != 0) return;
  throw RunTimeError(Error::kCannotCreateObject, SystemText(GetLastError()));
}

struct FreeLocal {
  void operator()(void* memory) const { LocalFree(memory); }
};
template <typename Type>
using LocalMemory = std::unique_ptr<Type, FreeLocal>;

/// The identifier of the user whom this thread acts for; empty if the system does not tell.
std::wstring UserIdentifier() {
  HANDLE opened = nullptr;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &opened) == 0) return {};
  const Handle token(opened);
  struct {
    TOKEN_USER user;
    std::array<char, SECURITY_MAX_SID_SIZE> identifier;
  } found{};
  DWORD size = 0;
  wchar_t* text = nullptr;
  if (GetTokenInformation(token.get(), TokenUser, &found, sizeof found, &size) == 0 ||
      ConvertSidToStringSidW(found.user.User.Sid, &text) == 0) {
    return {};
  }
  const LocalMemory<wchar_t> owned(text);
  return text;
}

/// A new folder for the user alone; nothing tells when the document in it has been read.
std::wstring NewPrivateFolder() {
  std::array<wchar_t, MAX_PATH + 1> parent{};
  GetTempPathW(static_cast<DWORD>(parent.size()), parent.data());
  const std::wstring folder = parent.data() + (L"zq7-" + std::to_wstring(std::random_device()()));
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  // Rights that are not inherited: all to the user, for what is in the folder too.
  const std::wstring rights = L"D:P(A;OICI;FA;;;" + UserIdentifier() + L")";
  if (ConvertStringSecurityDescriptorToSecurityDescriptorW(rights.c_str(), SDDL_REVISION_1,
                                                           &descriptor, nullptr) == 0) {
    throw RunTimeError(Error::kPermissionDenied, SystemText(GetLastError()));
  }
  const LocalMemory<void> owned(descriptor);
  SECURITY_ATTRIBUTES security = {sizeof security, descriptor, FALSE};
  if (CreateDirectoryW(folder.c_str(), &security) == 0) {
    throw FileError(GetLastError(), "create a folder", FromWide(folder), folder);
  }
  return folder;
}

class WindowsDesktop final : public Desktop {
 public:
  explicit WindowsDesktop(DriveMap drives) : drives_(std::move(drives)) {}

  void Open(std::string_view address) override {
    if (const auto path = FileOfAddress(address)) {
      // "/C:/docs" of an address is the path C:/docs.
      const bool has_drive = path->size() > 2 && (*path)[2] == ':';
      const Text text = FromUtf8(has_drive ? path->substr(1) : *path);
      const std::wstring native = NativePath(text, drives_);
      RequireDocument(*path, native);
      return OpenByShell(native);
    }
    if (address.starts_with("file:")) {
      throw RunTimeError(Error::kInvalidArgument, "the file is on another machine");
    }
    OpenByShell(Wide(FromUtf8(address)));
  }

  void Compose(std::string_view address, const std::vector<Text>& attachments) override {
    if (attachments.empty()) return OpenByShell(Wide(FromUtf8(address)));
    std::vector<std::wstring> files;
    for (const Text& attachment : attachments) files.push_back(Attachment(attachment));
    RequireDesktop();
    ComposeMail(address, std::move(files));
  }

  void OpenDocument(std::string_view name, std::string_view bytes) override {
    RequireDesktop();
    const std::wstring folder = NewPrivateFolder();
    const std::wstring path = folder + L"\\" + Wide(FromUtf8(name));
    try {
      OpenFile(FromWide(path), path, {.access = GENERIC_WRITE, .disposition = CREATE_NEW})
          .Write(bytes);
      OpenByShell(path);
    } catch (const RunTimeError&) {
      DeleteFileW(path.c_str());
      RemoveDirectoryW(folder.c_str());
      throw;
    }
  }

 private:
  /// The whole path of a file: the mail program runs in another folder.
  std::wstring Attachment(TextView path) const {
    const std::wstring native = NativePath(path, drives_);
    if (GetFileAttributesW(native.c_str()) == INVALID_FILE_ATTRIBUTES) {
      throw FileError(ERROR_FILE_NOT_FOUND, "attach", path, native);
    }
    return std::filesystem::absolute(native).native();
  }

  DriveMap drives_;
};

}  // namespace

std::shared_ptr<Desktop> SystemDesktop(DriveMap drives) {
  return std::make_shared<WindowsDesktop>(std::move(drives));
}

}  // namespace ZQ7Standard
