#include "platform/windows/program_search.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "base/ascii.h"
#include "base/fields.h"
#include "platform/windows/native_path.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

constexpr std::array<TextView, 2> kExtensions = {u".com", u".exe"};

bool IsFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

/// The file itself, or that of the name with an extension; empty if there is neither.
std::wstring FileAt(const std::wstring& path) {
  if (IsFile(path)) return path;
  for (const TextView extension : kExtensions) {
    if (const std::wstring whole = path + Wide(extension); IsFile(whole)) return whole;
  }
  return {};
}

Text Variable(const wchar_t* name) {
  std::wstring value(GetEnvironmentVariableW(name, nullptr, 0), L'\0');
  value.resize(GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size())));
  return FromWide(value);
}

}  // namespace

std::wstring ProgramPath(TextView program, const DriveMap& drives) {
  if (program.find_first_of(u"\\/:") != TextView::npos) return FileAt(NativePath(program, drives));
  const Text folders = Variable(L"PATH");
  for (TextView rest = folders; !rest.empty();) {
    Text folder(TakeField(rest, u';'));
    std::erase(folder, u'"');
    // An empty entry would be the current folder, where anybody may have put a program.
    if (folder.empty()) continue;
    const std::wstring path = FileAt(NativePath(folder + u"\\" + Text(program), {}));
    if (!path.empty()) return path;
  }
  return {};
}

bool IsProgramName(const std::wstring& path) {
  const Text text = FromWide(path);
  const TextView extension = TextView(text).substr(std::min(text.rfind(u'.'), text.size()));
  return std::ranges::any_of(
      kExtensions, [&](TextView known) { return EqualsIgnoringAsciiCase(known, extension); });
}

}  // namespace ZQ7Standard
