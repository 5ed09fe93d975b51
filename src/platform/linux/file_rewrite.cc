#include "platform/linux/file_rewrite.h"

#include <fcntl.h>
#include <sys/file.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <utility>

#include "platform/linux/file_errors.h"
#include "platform/linux/file_place.h"
#include "platform/linux/file_rights.h"
#include "platform/linux/native_path.h"

namespace ZQ7Standard {
namespace {

using std::chrono::milliseconds;

constexpr auto kLongestWait = std::chrono::seconds(10);
constexpr auto kFirstPause = milliseconds(1);
constexpr auto kLongestPause = milliseconds(32);

/// The time that a rewrite waits for others: growing pauses, different for each waiter.
class Patience {
 public:
  explicit Patience(const SystemCalls& calls) : calls_(calls), end_(calls.now() + kLongestWait) {}

  /// Returns false if the time is up.
  bool Wait() {
    const auto now = calls_.now();
    if (now >= end_) return false;
    calls_.sleep(kFirstPause + now.time_since_epoch() % longest_);
    longest_ = std::min(2 * longest_, kLongestPause - kFirstPause);
    return true;
  }

 private:
  const SystemCalls& calls_;
  std::chrono::steady_clock::time_point end_;
  std::chrono::milliseconds longest_ = kFirstPause;
};

/// Holds the lock of a file, if the file can be locked.
class Lock {
 public:
  Lock(const SystemCalls& calls, int file)
      : calls_(calls),
        file_(file),
        error_(Uninterrupted([&] { return calls.flock(file, LOCK_EX | LOCK_NB); }) == 0 ? 0
                                                                                        : errno) {}
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;
  /// Releases the lock also for a child process forked meanwhile.
  ~Lock() {
    if (error_ == 0) calls_.flock(file_, LOCK_UN);
  }

  bool IsAnothers() const { return error_ == EWOULDBLOCK; }

 private:
  const SystemCalls& calls_;
  int file_;
  int error_;
};

bool IsSame(const struct stat& a, const std::optional<struct stat>& b) {
  return b && a.st_dev == b->st_dev && a.st_ino == b->st_ino;
}

bool CannotBeRead(int error) {
  return MeansMissing(error) || MeansDenied(error);
}

/// The status of the file at `place`; nullopt if it is no longer the file found there, and opened
/// as `file` if the user may read it.
std::optional<struct stat> StatusNow(const FilePlace& place, const std::optional<OpenFile>& file) {
  if (file && !IsSame(file->Status(), place.status)) return std::nullopt;
  const auto status = place.folder.StatusOf(place.name);
  return IsSame(*place.status, status) ? status : std::nullopt;
}

/// Creates a temporary file that nobody else can read yet. Anything that already has its name is
/// deleted, not followed, whoever left it and however it is protected.
OpenFile MakeTemporary(const OpenFile& folder, const std::string& name) {
  constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW;
  constexpr unsigned kOwnerOnly = S_IRUSR | S_IWUSR;
  folder.Calls().unlinkat(folder.Descriptor(), name.c_str(), 0);
  return folder.Open(name, kFlags, kOwnerOnly);
}

/// Replaces a file by one of `bytes`; false if a writer that ignores the lock has taken its
/// temporary name.
bool Replace(const FilePlace& place, const FileRights& rights, std::string_view bytes) {
  const OpenFile& folder = place.folder;
  const std::string name = place.name + "$$$$";
  OpenFile temporary = MakeTemporary(folder, name);
  const struct stat made = temporary.Status();
  TakeRights(temporary, made, rights);
  temporary.Write(bytes);
  temporary.Sync();
  temporary.Close();
  if (!IsSame(made, folder.StatusOf(name))) return false;
  const int at = folder.Descriptor();
  if (folder.Calls().renameat(at, name.c_str(), at, place.name.c_str()) != 0) {
    folder.Fail(errno, "rename");
  }
  return true;
}

/// Rewrites the file at `place`; false if another writer was faster.
bool TryRewrite(const FilePlace& place, const FileChange& change) {
  constexpr int kForReading = O_RDONLY | O_NONBLOCK | O_NOFOLLOW;
  const OpenFile& folder = place.folder;
  // A device or a pipe would be destroyed.
  if (!S_ISREG(place.status->st_mode)) folder.Fail(EINVAL, "rewrite");
  const auto file = folder.OpenUnless(CannotBeRead, place.name, kForReading);
  {
    // A file that may not be read cannot be locked either.
    const Lock lock(folder.Calls(), file ? file->Descriptor() : -1);
    const auto status = lock.IsAnothers() ? std::nullopt : StatusNow(place, file);
    if (!status) return false;
    std::optional<std::string> old;
    const std::string bytes = change([&]() -> std::string_view {
      if (!file) folder.Fail(EACCES, "read");
      if (!old) old = file->ReadToEnd(*status);
      return *old;
    });
    const FileRights rights{*status, file ? AccessListOf(*file) : std::nullopt};
    if (!Replace(place, rights, bytes)) return false;
  }
  SyncFolder(place);
  return true;
}

class LinuxFileRewriter final : public FileRewriter {
 public:
  LinuxFileRewriter(const SystemCalls& calls, DriveMap drives)
      : calls_(calls), drives_(std::move(drives)) {}

  bool Rewrite(TextView path, const FileChange& change) override {
    const std::string native = NativePath(path, drives_);
    for (Patience patience(calls_);;) {
      const auto place = FindPlace(path, native, calls_);
      if (!place || !place->status || S_ISDIR(place->status->st_mode)) return false;
      if (TryRewrite(*place, change)) return true;
      if (!patience.Wait()) place->folder.Fail(EBUSY, "lock");
    }
  }

 private:
  const SystemCalls& calls_;
  DriveMap drives_;
};

}  // namespace

std::shared_ptr<FileRewriter> FileRewriterBy(const SystemCalls& calls, DriveMap drives) {
  return std::make_shared<LinuxFileRewriter>(calls, std::move(drives));
}

std::shared_ptr<FileRewriter> SystemFileRewriter(DriveMap drives) {
  return FileRewriterBy(kSystemCalls, std::move(drives));
}

}  // namespace ZQ7Standard
