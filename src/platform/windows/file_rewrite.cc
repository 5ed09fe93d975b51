#include <ZQ7Standard/platform/file_rewrite.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>
#include <utility>

#include "platform/windows/native_path.h"
#include "platform/windows/new_file.h"
#include "platform/windows/open_file.h"

namespace ZQ7Standard {
namespace {

using std::chrono::milliseconds;
using Time = std::chrono::steady_clock;

constexpr auto kLongestWait = std::chrono::seconds(10);
constexpr auto kFirstPause = milliseconds(1);
constexpr auto kLongestPause = milliseconds(32);

/// The time that a rewrite waits for others: growing pauses, different for each waiter.
class Patience {
 public:
  /// Returns false if the time is up.
  bool Wait() {
    const auto now = Time::now();
    if (now >= end_) return false;
    std::this_thread::sleep_for(kFirstPause + now.time_since_epoch() % longest_);
    longest_ = std::min(2 * longest_, kLongestPause - kFirstPause);
    return true;
  }

 private:
  Time::time_point end_ = Time::now() + kLongestWait;
  milliseconds longest_ = kFirstPause;
};

/// Holds the lock of a file. It is one byte far beyond any content: the system keeps others from
/// what is locked, and who only reads is to read on.
class Lock {
 public:
  explicit Lock(HANDLE file)
      : file_(file),
        is_held_(LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                            &place_) != 0) {}
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;
  ~Lock() {
    if (is_held_) UnlockFileEx(file_, 0, 1, 0, &place_);
  }

  bool IsHeld() const { return is_held_; }

 private:
  HANDLE file_;
  OVERLAPPED place_ = {.Internal = 0,
                       .InternalHigh = 0,
                       .Offset = 0xFFFFFFFE,
                       .OffsetHigh = 0x7FFFFFFF,
                       .hEvent = nullptr};
  bool is_held_;
};

/// Puts the temporary file in the place of `target`, whose rights and attributes it takes, except
/// that it may be written.
void Replace(const std::wstring& target, DWORD attributes, TemporaryFile& temporary) {
  const bool is_read_only = (attributes & FILE_ATTRIBUTE_READONLY) != 0;
  if (is_read_only)
    SetFileAttributesW(target.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
  constexpr DWORD kFlags = REPLACEFILE_WRITE_THROUGH | REPLACEFILE_IGNORE_MERGE_ERRORS;
  if (ReplaceFileW(target.c_str(), temporary.Native().c_str(), nullptr, kFlags, nullptr, nullptr) !=
      0) {
    return temporary.Keep();
  }
  const DWORD error = GetLastError();
  // The old file is gone and the new one waits under its temporary name.
  if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT) {
    temporary.Keep();
    if (MoveFileExW(temporary.Native().c_str(), target.c_str(), MOVEFILE_WRITE_THROUGH) != 0)
      return;
  }
  if (is_read_only) SetFileAttributesW(target.c_str(), attributes);
  temporary.Fail(error, "replace");
}

/// Rewrites `file`, found by its path; false if another writer was faster.
bool TryRewrite(TextView path, const OpenFile& file, const FileChange& change) {
  const std::wstring target = FinalPathOf(file.Get());
  const Lock lock(file.Get());
  if (!lock.IsHeld()) return false;
  const auto found = OpenFile::IfThere(path, target, {.access = FILE_READ_ATTRIBUTES});
  if (!found || !IsSameFile(file, *found)) return false;
  std::optional<std::string> old;
  const std::string bytes = change([&]() -> std::string_view {
    if (!old) old = file.ReadToEnd();
    return *old;
  });
  TemporaryFile temporary(path, target + L"$$$$", bytes);
  Replace(target, file.Information().dwFileAttributes, temporary);
  return true;
}

class WindowsFileRewriter final : public FileRewriter {
 public:
  explicit WindowsFileRewriter(DriveMap drives) : drives_(std::move(drives)) {}

  bool Rewrite(TextView path, const FileChange& change) override {
    const std::wstring native = NativePath(path, drives_);
    for (Patience patience;;) {
      const auto file = OpenFile::IfThere(path, native, {});
      if (!file) return false;
      file->RequireDisk("rewrite");
      if (TryRewrite(path, *file, change)) return true;
      if (!patience.Wait()) file->Fail(ERROR_LOCK_VIOLATION, "lock");
    }
  }

 private:
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileRewriter> SystemFileRewriter(DriveMap drives) {
  return std::make_shared<WindowsFileRewriter>(std::move(drives));
}

}  // namespace ZQ7Standard
