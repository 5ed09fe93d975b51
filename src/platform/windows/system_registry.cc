#include <ZQ7Standard/platform/registry.h>
#include <windows.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "base/code_page.h"
#include "platform/registry_path.h"
#include "platform/windows/wide_text.h"

// The A functions convert names and texts by the machine's code page, and take paths of 260
// characters at most. The W functions, given what the library's bytes stand for in Windows-874,
// store on every machine what RegCreateKeyExA, RegSetValueExA and the others store on a Thai one.

namespace ZQ7Standard {
namespace {

struct CloseKey {
  using pointer = HKEY;
  void operator()(HKEY key) const { RegCloseKey(key); }
};
using KeyHandle = std::unique_ptr<HKEY, CloseKey>;

/// The numbers of the roots are handles, which the system extends by their sign.
HKEY HandleOf(std::int32_t root) {
  return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(root));
}

bool IsText(DWORD type) {
  return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

std::string BytesOfText(std::string_view data) {
  Text text(data.size() / sizeof(char16_t), u'\0');
  std::copy_n(data.data(), text.size() * sizeof(char16_t), reinterpret_cast<char*>(text.data()));
  return ToCodePage(text);
}

class WindowsKey final : public RegistryKey {
 public:
  explicit WindowsKey(KeyHandle key) : key_(std::move(key)) {}

  std::optional<QueriedValue> Query(TextView name, std::span<char> buffer) override {
    std::string data(4096, '\0');  // enough for any value that `RegistryObject` reads
    DWORD type = 0;
    LSTATUS status = ERROR_MORE_DATA;
    while (status == ERROR_MORE_DATA) {
      auto size = static_cast<DWORD>(data.size());
      status = RegQueryValueExW(key_.get(), Wide(name).c_str(), nullptr, &type,
                                reinterpret_cast<BYTE*>(data.data()), &size);
      data.resize(size);
    }
    if (status != ERROR_SUCCESS) return std::nullopt;
    if (IsText(type)) data = BytesOfText(data);
    if (data.size() > buffer.size()) return std::nullopt;
    std::ranges::copy(data, buffer.begin());
    return QueriedValue{type, data.size()};
  }

  bool Set(TextView name, std::uint32_t type, std::string_view data) override {
    std::wstring text;
    if (IsText(type)) {
      text = Wide(FromCodePage(data));
      data = {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
    }
    // The system would count a zero that follows a text as part of it.
    const std::wstring name_text = Wide(name);
    const std::string stored = std::string(data).append(sizeof(wchar_t), '.');
    return RegSetValueExW(key_.get(), name_text.c_str(), 0, type,
                          reinterpret_cast<const BYTE*>(stored.data()),
                          static_cast<DWORD>(data.size())) == ERROR_SUCCESS &&
           RegFlushKey(key_.get()) == ERROR_SUCCESS;
  }

 private:
  KeyHandle key_;
};

std::unique_ptr<RegistryKey> Opened(LSTATUS status, HKEY key) {
  if (status != ERROR_SUCCESS) return nullptr;
  return std::make_unique<WindowsKey>(KeyHandle(key));
}

/// Where the next names of a path end that one call of the system can create; npos if that is all.
std::size_t EndOfStep(TextView path, std::size_t begin) {
  constexpr int kMostAtOnce = 32;
  for (int level = 0; level < kMostAtOnce && begin != TextView::npos; ++level) {
    begin = path.find(u'\\', begin + 1);
  }
  return begin;
}

LSTATUS CreateKey(HKEY root, TextView path, const KeyCreation& creation, HKEY& key) {
  SECURITY_ATTRIBUTES security = {
      .nLength = creation.security.length,
      .lpSecurityDescriptor = const_cast<void*>(creation.security.descriptor),
      .bInheritHandle = creation.security.inherit ? TRUE : FALSE};
  return RegCreateKeyExW(root, Wide(path).c_str(), 0, Wide(creation.key_class).data(),
                         creation.options, creation.access, &security, &key, nullptr);
}

class WindowsRegistry final : public Registry {
 public:
  std::unique_ptr<RegistryKey> Open(std::int32_t root, TextView path,
                                    std::uint32_t access) override {
    const auto key_path = KeyPath(path);
    if (!KeepsKeys(root) || !key_path) return nullptr;
    HKEY key = nullptr;
    const LSTATUS status = RegOpenKeyExW(HandleOf(root), Wide(*key_path).c_str(), 0, access, &key);
    return Opened(status, key);
  }

  std::unique_ptr<RegistryKey> Create(std::int32_t root, TextView path,
                                      const KeyCreation& creation) override {
    const auto key_path = KeyPath(path);
    if (!KeepsKeys(root) || !key_path) return nullptr;
    std::unique_ptr<RegistryKey> created;
    std::size_t end = 0;
    do {
      end = EndOfStep(*key_path, end);
      HKEY key = nullptr;
      const LSTATUS status = CreateKey(HandleOf(root), key_path->substr(0, end), creation, key);
      created = Opened(status, key);
    } while (created && end != TextView::npos);
    return created;
  }
};

}  // namespace

std::shared_ptr<Registry> SystemRegistry(const RegistryFolders& /*folders*/) {
  return std::make_shared<WindowsRegistry>();
}

}  // namespace ZQ7Standard
