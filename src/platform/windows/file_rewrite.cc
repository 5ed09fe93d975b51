#include <ZQ7Standard/platform/file_rewrite.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>
#include <thread>
#include <utility>

#include "platform/windows/file_errors.h"
#include "platform/windows/file_rights.h"
#include "platform/windows/native_path.h"
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

bool MeansHeldByOthers(DWORD error) {
  return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION ||
         error == ERROR_LOCK_VIOLATION || error == ERROR_USER_MAPPED_FILE;
}

bool TryLock(HANDLE file) {
  OVERLAPPED start{};
  return LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, MAXDWORD,
                    MAXDWORD, &start) != 0;
}

/// The temporary file beside a file, which one rewrite at a time holds, from its creation until it
/// has the place of the file: the file itself must not be open then. One left by a killed process
/// is used again.
class Temporary {
 public:
  /// Returns null if another rewrite holds it.
  static std::unique_ptr<Temporary> TryHold(TextView path, const std::wstring& target) {
    // A link that others put there is not followed.
    constexpr FileOpening kOpening = {
        .access = GENERIC_READ | GENERIC_WRITE | WRITE_DAC | WRITE_OWNER,
        .disposition = OPEN_ALWAYS,
        .attributes = FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT};
    const std::wstring native = target + L"$$$$";
    auto file = OpenFile::Unless(MeansHeldByOthers, path, native, kOpening);
    if (!file) {
      RequireThere(path, native);
      return nullptr;
    }
    if (file->IsLink()) DeleteFileW(native.c_str());
    if (!TryLock(file->Get()) || !file->IsAt(native)) return nullptr;
    return std::make_unique<Temporary>(std::move(*file), target);
  }

  Temporary(OpenFile file, std::wstring target)
      : file_(std::move(file)), target_(std::move(target)) {}
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  ~Temporary() {
    if (!is_moved_) DeleteFileW(file_.Native().c_str());
  }

  /// Writes the new content, with the rights to the file set before.
  void Write(std::string_view bytes) const {
    file_.Truncate();
    TakeRights(file_, target_);
    file_.Write(bytes);
    file_.Sync();
  }

  /// Takes the place of the file in one step; returns false if others have that open.
  bool Replace() {
    const DWORD attributes = GetFileAttributesW(target_.c_str());
    const bool is_read_only =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    if (is_read_only) {
      SetFileAttributesW(target_.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
    }
    constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    is_moved_ = MoveFileExW(file_.Native().c_str(), target_.c_str(), kFlags) != 0;
    const DWORD error = GetLastError();
    if (is_read_only && !is_moved_) SetFileAttributesW(target_.c_str(), attributes);
    if (!is_moved_ && !MeansHeldByOthers(error)) file_.Fail(error, "replace");
    return is_moved_;
  }

 private:
  /// Nobody waits for a file that the user may not create.
  static void RequireThere(TextView path, const std::wstring& native) {
    if (GetFileAttributesW(native.c_str()) == INVALID_FILE_ATTRIBUTES &&
        MeansMissing(GetLastError())) {
      throw FileError(ERROR_ACCESS_DENIED, "create", path, native);
    }
  }

  OpenFile file_;
  std::wstring target_;
  bool is_moved_ = false;
};

/// Rewrites the file `target`; false if others hold it.
bool TryRewrite(TextView path, const std::wstring& target, const FileChange& change) {
  const auto temporary = Temporary::TryHold(path, target);
  if (!temporary) return false;
  std::optional<std::string> old;
  temporary->Write(change([&]() -> std::string_view {
    if (!old) old = OpenFile(path, target, {}).ReadToEnd();
    return *old;
  }));
  return temporary->Replace();
}

class WindowsFileRewriter final : public FileRewriter {
 public:
  explicit WindowsFileRewriter(DriveMap drives) : drives_(std::move(drives)) {}

  bool Rewrite(TextView path, const FileChange& change) override {
    const std::wstring native = NativePath(path, drives_);
    for (Patience patience;;) {
      const auto target = TargetOf(path, native);
      if (!target) return false;
      if (TryRewrite(path, *target, change)) return true;
      if (!patience.Wait()) throw FileError(ERROR_LOCK_VIOLATION, "lock", path, native);
    }
  }

 private:
  /// The file that `native` leads to; nullopt if there is none.
  static std::optional<std::wstring> TargetOf(TextView path, const std::wstring& native) {
    const auto file = OpenFile::IfThere(path, native, {.access = FILE_READ_ATTRIBUTES});
    if (!file) return std::nullopt;
    file->RequireDisk("rewrite");
    return FinalPathOf(file->Get(), native);
  }

  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileRewriter> SystemFileRewriter(DriveMap drives) {
  return std::make_shared<WindowsFileRewriter>(std::move(drives));
}

}  // namespace ZQ7Standard
