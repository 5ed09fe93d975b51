#include "registration.h"

#include <string>
#include <vector>

#include "classes.h"
#include "module.h"

namespace ZQ7Windows {
namespace {

const std::wstring kClassesKey = L"Software\\Classes\\";
const std::wstring kVersion = L"1.0";
/// The system's marshallers: of interfaces that a type library describes, and of events.
constexpr auto kUniversalStub = L"{00020424-0000-0000-C000-000000000046}";
constexpr auto kDispatchStub = L"{00020420-0000-0000-C000-000000000046}";
constexpr bool kIs64Bit = sizeof(void*) == 8;
constexpr auto kPlatform = kIs64Bit ? L"win64" : L"win32";
constexpr auto kOtherPlatform = kIs64Bit ? L"win32" : L"win64";

struct RegistryRow {
  std::wstring key;
  std::wstring name;  ///< empty for the key's own value
  std::wstring value;
};
using Rows = std::vector<RegistryRow>;

HKEY RootOf(RegisteredFor whom) {
  return whom == RegisteredFor::kUser ? kUserRoot : kMachineRoot;
}

std::wstring ProgId(const ServerRow& server) {
  return L"ZQ7Standard." + std::wstring(server.name.begin(), server.name.end());
}

std::wstring ClassKey(const ServerRow& server) {
  return kClassesKey + L"CLSID\\" + GuidText(*server.id);
}

std::wstring InterfaceKey(REFIID id) {
  return kClassesKey + L"Interface\\" + GuidText(id);
}

std::wstring LibraryKey() {
  return kClassesKey + L"TypeLib\\" + GuidText(LibraryId());
}

std::wstring LibraryFileKey(const wchar_t* platform) {
  return LibraryKey() + L"\\" + kVersion + L"\\0\\" + platform;
}

void AddClass(Rows& rows, const ServerRow& server) {
  const std::wstring key = ClassKey(server);
  const std::wstring prog_id = ProgId(server);
  const std::wstring version = prog_id + L".1";
  const std::wstring id = GuidText(*server.id);
  rows.insert(rows.end(), {{key, L"", prog_id},
                           {key + L"\\InprocServer32", L"", ModulePath()},
                           {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
                           {key + L"\\ProgID", L"", version},
                           {key + L"\\VersionIndependentProgID", L"", prog_id},
                           {key + L"\\TypeLib", L"", GuidText(LibraryId())},
                           {key + L"\\Version", L"", kVersion},
                           {key + L"\\Programmable", L"", L""},
                           {kClassesKey + version, L"", prog_id},
                           {kClassesKey + version + L"\\CLSID", L"", id},
                           {kClassesKey + prog_id, L"", prog_id},
                           {kClassesKey + prog_id + L"\\CLSID", L"", id},
                           {kClassesKey + prog_id + L"\\CurVer", L"", version}});
}

void AddInterface(Rows& rows, const std::wstring& name, REFIID id, const wchar_t* stub) {
  const std::wstring key = InterfaceKey(id);
  rows.insert(rows.end(), {{key, L"", name},
                           {key + L"\\ProxyStubClsid32", L"", stub},
                           {key + L"\\TypeLib", L"", GuidText(LibraryId())},
                           {key + L"\\TypeLib", L"Version", kVersion}});
}

void AddLibrary(Rows& rows) {
  const std::wstring path = ModulePath();
  const std::wstring key = LibraryKey() + L"\\" + kVersion;
  rows.insert(rows.end(), {{key, L"", L"ZQ7Standard"},
                           {LibraryFileKey(kPlatform), L"", path},
                           {key + L"\\FLAGS", L"", L"0"},
                           {key + L"\\HELPDIR", L"", path.substr(0, path.rfind(L'\\'))}});
}

/// Everything that a registration writes.
Rows AllRows() {
  Rows rows;
  AddLibrary(rows);
  for (const ServerRow& server : Servers()) {
    const std::wstring name(server.name.begin(), server.name.end());
    AddClass(rows, server);
    AddInterface(rows, L"I" + name, *server.interface_id, kUniversalStub);
    if (server.events != nullptr) {
      AddInterface(rows, L"D" + name + L"Events", *server.events, kDispatchStub);
    }
  }
  return rows;
}

/// The keys of this architecture's DLL alone.
std::vector<std::wstring> OwnKeys() {
  std::vector<std::wstring> keys = {LibraryFileKey(kPlatform)};
  for (const ServerRow& server : Servers()) {
    keys.push_back(ClassKey(server));
    keys.push_back(InterfaceKey(*server.interface_id));
    if (server.events != nullptr) keys.push_back(InterfaceKey(*server.events));
  }
  return keys;
}

/// The keys that the DLLs of both architectures share.
std::vector<std::wstring> SharedKeys() {
  std::vector<std::wstring> keys = {LibraryKey()};
  for (const ServerRow& server : Servers()) {
    keys.push_back(kClassesKey + ProgId(server));
    keys.push_back(kClassesKey + ProgId(server) + L".1");
  }
  return keys;
}

bool HasKey(HKEY root, const std::wstring& key) {
  HKEY opened = nullptr;
  if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
  RegCloseKey(opened);
  return true;
}

/// Deletes keys with all below them; the first failure, if any.
HRESULT Delete(HKEY root, const std::vector<std::wstring>& keys) {
  HRESULT result = S_OK;
  for (const std::wstring& key : keys) {
    const LSTATUS status = RegDeleteTreeW(root, key.c_str());
    const bool gone = status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
    if (!gone && SUCCEEDED(result)) result = HRESULT_FROM_WIN32(static_cast<DWORD>(status));
  }
  return result;
}

}  // namespace

HRESULT Register(RegisteredFor whom) {
  for (const auto& [key, name, value] : AllRows()) {
    const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    const LSTATUS status =
        RegSetKeyValueW(RootOf(whom), key.c_str(), name.empty() ? nullptr : name.c_str(), REG_SZ,
                        value.c_str(), size);
    if (status != ERROR_SUCCESS) return HRESULT_FROM_WIN32(static_cast<DWORD>(status));
  }
  return S_OK;
}

HRESULT Unregister(RegisteredFor whom) {
  const HKEY root = RootOf(whom);
  const HRESULT own = Delete(root, OwnKeys());
  if (HasKey(root, LibraryFileKey(kOtherPlatform))) return own;
  const HRESULT shared = Delete(root, SharedKeys());
  return FAILED(own) ? own : shared;
}

}  // namespace ZQ7Windows
