#include "platform/windows/native_path.h"

#include <algorithm>
#include <string_view>

#include "base/ascii.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

// The system's limit for a folder without the prefix: MAX_PATH less a short file name.
constexpr std::size_t kLongestPlain = MAX_PATH - 12;

constexpr std::wstring_view kLongPrefix = LR"(\\?\)";
constexpr std::wstring_view kSharePrefix = LR"(\\)";

bool BeginsWithDrive(TextView path) {
  return path.size() >= 2 && path[1] == u':' && IsAsciiLetter(path[0]);
}

/// `path` on a mapped drive with ".." resolved: in the drive's own folder it stays there.
std::wstring OnDrive(const std::wstring& path) {
  return std::filesystem::path(L'\\' + path).lexically_normal().make_preferred().native();
}

std::wstring Absolute(const std::wstring& path) {
  std::wstring whole(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  whole.resize(
      GetFullPathNameW(path.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr));
  return whole.empty() ? path : whole;
}

/// Names of devices are prefixed already.
bool IsPrefixed(std::wstring_view path) {
  return path.starts_with(kLongPrefix) || path.starts_with(LR"(\\.\)");
}

/// With the prefix the system takes a path as it is, so it is made whole first.
std::wstring WithoutLimit(const std::wstring& path) {
  if (path.size() < kLongestPlain || IsPrefixed(path)) return path;
  const std::wstring whole = Absolute(path);
  if (IsPrefixed(whole)) return whole;
  std::wstring prefixed(kLongPrefix);
  const bool is_share = whole.starts_with(kSharePrefix);
  if (is_share) prefixed += LR"(UNC\)";
  return prefixed += is_share ? whole.substr(kSharePrefix.size()) : whole;
}

}  // namespace

std::wstring NativePath(TextView path, const DriveMap& drives) {
  std::wstring native = Wide(path);
  std::ranges::replace(native, L'/', L'\\');
  std::ranges::replace(native, L'\0', L'\uFFFD');
  if (BeginsWithDrive(path)) {
    const auto drive = drives.find(static_cast<char>(AsciiUpper(path[0])));
    if (drive != drives.end()) native = drive->second.native() + OnDrive(native.substr(2));
  }
  return WithoutLimit(native);
}

std::wstring FinalPathOf(HANDLE file, const std::wstring& native) {
  std::wstring path(GetFinalPathNameByHandleW(file, nullptr, 0, 0), L'\0');
  path.resize(GetFinalPathNameByHandleW(file, path.data(), static_cast<DWORD>(path.size()), 0));
  return path.empty() ? Absolute(native) : path;
}

Text PathText(const std::filesystem::path& path) {
  Text text = FromWide(path.native());
  std::ranges::replace(text, u'/', u'\\');
  return text;
}

}  // namespace ZQ7Standard
