#include <ZQ7Standard/platform/file_status.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "platform/windows/file_errors.h"
#include "platform/windows/native_path.h"

namespace ZQ7Standard {
namespace {

using namespace std::chrono_literals;

struct StepRow {
  std::wstring_view file_system;
  std::chrono::nanoseconds step;
};

constexpr std::array<StepRow, 3> kSteps = {{{L"FAT", 2s}, {L"FAT32", 2s}, {L"exFAT", 10ms}}};

/// The system counts steps of 100 ns since 1601, 11,644,473,600 seconds before the epoch.
std::chrono::sys_time<std::chrono::nanoseconds> MomentOf(FILETIME time) {
  constexpr std::int64_t kEpoch = 116'444'736'000'000'000;
  const auto count =
      static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32U | time.dwLowDateTime);
  return std::chrono::sys_time<std::chrono::nanoseconds>((count - kEpoch) * 100ns);
}

class WindowsFileStatus final : public FileStatusSource {
 public:
  explicit WindowsFileStatus(DriveMap drives) : drives_(std::move(drives)) {}

  std::optional<FileStatus> StatusOf(TextView path) override {
    const std::wstring native = NativePath(path, drives_);
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (GetFileAttributesExW(native.c_str(), GetFileExInfoStandard, &data) == 0) {
      const DWORD error = GetLastError();
      if (MeansMissing(error) || error == ERROR_ACCESS_DENIED) return std::nullopt;
      throw FileError(error, "status", path, native);
    }
    return FileStatus{(data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                      (data.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0,
                      MomentOf(data.ftLastWriteTime)};
  }

  std::chrono::nanoseconds TimeStep(TextView path) override {
    std::array<wchar_t, MAX_PATH + 1> volume{};
    std::array<wchar_t, MAX_PATH + 1> name{};
    const std::wstring native = NativePath(path, drives_);
    if (GetVolumePathNameW(native.c_str(), volume.data(), MAX_PATH) == 0 ||
        GetVolumeInformationW(volume.data(), nullptr, 0, nullptr, nullptr, nullptr, name.data(),
                              MAX_PATH) == 0) {
      return 100ns;
    }
    const auto* const row =
        std::ranges::find(kSteps, std::wstring_view(name.data()), &StepRow::file_system);
    return row != kSteps.end() ? row->step : 100ns;
  }

  void ClearReadOnly(TextView path) override {
    const std::wstring native = NativePath(path, drives_);
    const DWORD attributes = GetFileAttributesW(native.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES ||
        SetFileAttributesW(native.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY}) == 0) {
      throw FileError(GetLastError(), "clear read-only", path, native);
    }
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileStatusSource> SystemFileStatus(DriveMap drives) {
  return std::make_shared<WindowsFileStatus>(std::move(drives));
}

}  // namespace ZQ7Standard
