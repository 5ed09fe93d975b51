#include "fill/output_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>
#include <utility>

namespace ZQ7Tool {
namespace {

/// The temporary files that a signal handler removes; an empty name is a free place.
constexpr std::size_t kMostFiles = 4;
std::array<std::array<char, 4096>, kMostFiles> temporary_names;

constexpr std::array kEndingSignals = {SIGHUP, SIGINT, SIGPIPE, SIGTERM};

extern "C" void RemoveAndEnd(int signal) {
  for (const auto& name : temporary_names) {
    if (name.front() != '\0') unlink(name.data());
  }
  std::raise(signal);  // with the system's handler, which `SA_RESETHAND` has put back
}

/// Installs the handler, except for signals that the caller of the program has switched off.
void HandleSignals() {
  for (const int signal : kEndingSignals) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler != SIG_DFL) continue;
    action.sa_handler = RemoveAndEnd;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
    sigaction(signal, &action, nullptr);
  }
}

/// Keeps all signals of the thread waiting.
class BlockedSignals {
 public:
  BlockedSignals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
  }
  ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  BlockedSignals(const BlockedSignals&) = delete;
  BlockedSignals& operator=(const BlockedSignals&) = delete;

 private:
  sigset_t before_ = {};
};

void Remember(const std::string& name) {
  const auto free =
      std::ranges::find(temporary_names, '\0', [](const auto& n) { return n.front(); });
  if (free == temporary_names.end() || name.size() >= free->size()) return;
  free->at(name.copy(free->data(), name.size())) = '\0';
  HandleSignals();
}

void Forget(const std::string& name) {
  for (auto& known : temporary_names) {
    if (name == known.data()) known.front() = '\0';
  }
}

/// Where the last link leads.
std::filesystem::path Followed(const std::filesystem::path& path) {
  std::error_code none;
  auto followed = std::filesystem::canonical(path, none);
  if (!none) return followed;
  return std::filesystem::is_symlink(path) ? std::filesystem::weakly_canonical(path) : path;
}

constexpr mode_t kAnybody = 0666;

mode_t ModeOfNewFiles() {
  const mode_t mask = umask(0);
  umask(mask);
  return kAnybody & ~mask;
}

/// Gives a new file the rights of the one that it replaces, as far as the user may.
bool TakeRights(int file, const struct stat* replaced) {
  if (replaced == nullptr) return fchmod(file, ModeOfNewFiles()) == 0;
  constexpr mode_t kRights = 07777;
  // Without the group, its rights would be another group's.
  const bool owned = fchown(file, replaced->st_uid, replaced->st_gid) == 0 ||
                     fchown(file, static_cast<uid_t>(-1), replaced->st_gid) == 0;
  constexpr mode_t kOwnersAndOthers = 0707;
  return fchmod(file, replaced->st_mode & (owned ? kRights : kOwnersAndOthers)) == 0;
}

bool SyncFolder(const std::filesystem::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return false;
  const bool synced = fsync(descriptor) == 0 || errno == EINVAL;
  close(descriptor);
  return synced;
}

}  // namespace

OutputFile::OutputFile(const std::filesystem::path& path) : OutputFile() {
  path_ = Followed(path);
  struct stat replaced = {};
  const bool exists = stat(path_.c_str(), &replaced) == 0;
  if (exists && !S_ISREG(replaced.st_mode)) {
    file_ = open(path_.c_str(), O_WRONLY | O_CLOEXEC);
    if (file_ < 0) Fail();
    return;
  }
  if (exists && access(path_.c_str(), W_OK) != 0) Fail();
  const std::filesystem::path folder = path_.has_parent_path() ? path_.parent_path() : ".";
  Create(folder / std::string(".").append(path_.filename().string()).append(".XXXXXX"));
  if (!TakeRights(file_, exists ? &replaced : nullptr)) Fail();
}

/// Creates the temporary file; its name is known to the handler as soon as there is the file.
void OutputFile::Create(const std::filesystem::path& name) {
  const BlockedSignals blocked;
  std::string made = name;  // which gets letters of its own at its end
  file_ = mkostemp(made.data(), O_CLOEXEC);
  if (file_ < 0) Fail();
  temporary_ = std::move(made);
  Remember(temporary_.native());
}

OutputFile::~OutputFile() {
  const BlockedSignals blocked;
  if (file_ >= 0) close(file_);
  if (temporary_.empty()) return;
  unlink(temporary_.c_str());
  Forget(temporary_.native());
}

void OutputFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) Fail();
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void OutputFile::Commit() {
  if (temporary_.empty()) return;
  const BlockedSignals blocked;
  if (fsync(file_) != 0 || rename(temporary_.c_str(), path_.c_str()) != 0) Fail();
  Forget(temporary_.native());
  temporary_.clear();
  if (!SyncFolder(path_.has_parent_path() ? path_.parent_path() : ".")) Fail();
}

void OutputFile::Fail() const {
  throw std::system_error(errno, std::generic_category(), "cannot write " + path_.string());
}

bool IsSameFile(const std::string& input, const std::string& output) {
  struct stat in = {};
  struct stat out = {};
  const bool known = (input == "-" ? fstat(STDIN_FILENO, &in) : stat(input.c_str(), &in)) == 0 &&
                     (output == "-" ? fstat(STDOUT_FILENO, &out) : stat(output.c_str(), &out)) == 0;
  return known && S_ISREG(in.st_mode) && in.st_dev == out.st_dev && in.st_ino == out.st_ino;
}

}  // namespace ZQ7Tool
