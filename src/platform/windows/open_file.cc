#include "platform/windows/open_file.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/windows/file_errors.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kMostAtOnce = std::size_t{1} << 26;  // the system counts in 32 bits

DWORD SizeOfStep(std::size_t size) {
  return static_cast<DWORD>(std::min(size, kMostAtOnce));
}

}  // namespace

OpenFile::OpenFile(TextView path, std::wstring native) : path_(path), native_(std::move(native)) {}

OpenFile::OpenFile(TextView path, std::wstring native, const FileOpening& opening)
    : OpenFile(path, std::move(native)) {
  if (!TryOpen(opening)) Fail(GetLastError(), "open");
}

std::optional<OpenFile> OpenFile::IfThere(TextView path, std::wstring native,
                                          const FileOpening& opening) {
  OpenFile file(path, std::move(native));
  if (file.TryOpen(opening)) return file;
  const DWORD error = GetLastError();
  const DWORD attributes = GetFileAttributesW(file.native_.c_str());
  const bool is_folder =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if (!MeansMissing(error) && !is_folder) file.Fail(error, "open");
  return std::nullopt;
}

std::optional<OpenFile> OpenFile::Unless(bool (*expected)(DWORD error), TextView path,
                                         std::wstring native, const FileOpening& opening) {
  OpenFile file(path, std::move(native));
  if (file.TryOpen(opening)) return file;
  const DWORD error = GetLastError();
  if (!expected(error)) file.Fail(error, "open");
  return std::nullopt;
}

bool OpenFile::TryOpen(const FileOpening& opening) {
  constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  handle_ = FileHandle(CreateFileW(native_.c_str(), opening.access, kShared, nullptr,
                                   opening.disposition, opening.attributes, nullptr));
  return handle_ != nullptr;
}

std::size_t OpenFile::Read(std::span<char> buffer) const {
  DWORD count = 0;
  if (ReadFile(Get(), buffer.data(), SizeOfStep(buffer.size()), &count, nullptr) == 0) {
    Fail(GetLastError(), "read");
  }
  return count;
}

std::string OpenFile::ReadToEnd() const {
  LARGE_INTEGER expected{};
  if (GetFileSizeEx(Get(), &expected) == 0) Fail(GetLastError(), "status");
  // One byte more than expected shows where the end is.
  std::string bytes(static_cast<std::size_t>(expected.QuadPart) + 1, '\0');
  std::size_t size = 0;
  while (const std::size_t count = Read(std::span(bytes).subspan(size))) {
    size += count;
    if (size == bytes.size()) bytes.resize(2 * size);
  }
  bytes.resize(size);
  return bytes;
}

void OpenFile::Write(std::string_view bytes) const {
  while (!bytes.empty()) {
    DWORD count = 0;
    if (WriteFile(Get(), bytes.data(), SizeOfStep(bytes.size()), &count, nullptr) == 0) {
      Fail(GetLastError(), "write");
    }
    bytes.remove_prefix(count);
  }
}

void OpenFile::Truncate() const {
  FILE_END_OF_FILE_INFO start{};
  if (SetFileInformationByHandle(Get(), FileEndOfFileInfo, &start, sizeof start) == 0) {
    Fail(GetLastError(), "write");
  }
}

void OpenFile::Sync() const {
  if (FlushFileBuffers(Get()) == 0) Fail(GetLastError(), "sync");
}

bool OpenFile::IsLink() const {
  return (Information().dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

bool OpenFile::IsAt(const std::wstring& native) const {
  OpenFile found(path_, native);
  return found.TryOpen({.access = FILE_READ_ATTRIBUTES,
                        .attributes = FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT}) &&
         IsSameFile(*this, found);
}

void OpenFile::RequireDisk(std::string_view step) const {
  if (!IsOnDisk()) Fail(ERROR_NOT_SUPPORTED, step);
}

void OpenFile::RequireWritable(std::string_view step) const {
  if (IsOnDisk() && (Information().dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0) {
    Fail(ERROR_ACCESS_DENIED, step);
  }
}

BY_HANDLE_FILE_INFORMATION OpenFile::Information() const {
  BY_HANDLE_FILE_INFORMATION information{};
  if (GetFileInformationByHandle(Get(), &information) == 0) Fail(GetLastError(), "status");
  return information;
}

void OpenFile::Fail(DWORD error, std::string_view step) const {
  throw FileError(error, step, path_, native_);
}

bool IsSameFile(const OpenFile& a, const OpenFile& b) {
  const auto one = a.Information();
  const auto other = b.Information();
  return one.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
         one.nFileIndexHigh == other.nFileIndexHigh && one.nFileIndexLow == other.nFileIndexLow;
}

}  // namespace ZQ7Standard
