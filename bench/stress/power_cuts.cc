#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/platform/path_text.h>
#include <fcntl.h>

#include <algorithm>
#include <map>
#include <span>
#include <utility>
#include <vector>

#include "bench/stress/stress.h"
#include "platform/linux/file_rewrite.h"

namespace ZQ7Standard::Stress {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "set.ini";

enum class Kind { kMake, kRemove, kMove, kWrite, kSync, kSyncFolder };

/// A system call that changes the disk, sooner or later.
struct Change {
  Kind kind;
  int file = 0;           ///< numbered in order of creation, after the old one
  std::string name = "";  ///< in the folder
  std::string text = "";  ///< the bytes of kWrite, the new name of kMove
};

// The system calls of a rewrite.
std::vector<Change> changes;
std::map<int, int> opened;        // the files of descriptors
std::map<std::string, int> made;  // the files of names

int OpenAt(int folder, const char* name, int flags, mode_t mode) {
  const int descriptor = kSystemCalls.openat(folder, name, flags, mode);
  opened.erase(descriptor);
  if ((flags & O_CREAT) == 0) return descriptor;
  const int file = static_cast<int>(made.size()) + 1;
  opened[descriptor] = made[name] = file;
  changes.push_back({Kind::kMake, file, name});
  return descriptor;
}

/// Writes half, so that it takes more than one call.
ssize_t Write(int descriptor, const void* bytes, std::size_t size) {
  const std::size_t half = (size + 1) / 2;
  changes.push_back(
      {Kind::kWrite, opened.at(descriptor), "", {static_cast<const char*>(bytes), half}});
  return kSystemCalls.write(descriptor, bytes, half);
}

int Sync(int descriptor) {
  const auto file = opened.find(descriptor);
  changes.push_back(file == opened.end() ? Change{Kind::kSyncFolder}
                                         : Change{Kind::kSync, file->second});
  return kSystemCalls.fsync(descriptor);
}

int Remove(int folder, const char* name, int flags) {
  changes.push_back({Kind::kRemove, 0, name});
  return kSystemCalls.unlinkat(folder, name, flags);
}

int Move(int folder, const char* name, int new_folder, const char* new_name) {
  changes.push_back({Kind::kMove, made.at(name), name, new_name});
  return kSystemCalls.renameat(folder, name, new_folder, new_name);
}

SystemCalls Recording() {
  SystemCalls calls = kSystemCalls;
  calls.openat = OpenAt;
  calls.write = Write;
  calls.fsync = Sync;
  calls.unlinkat = Remove;
  calls.renameat = Move;
  return calls;
}

struct Disk {
  std::map<std::string, int> names;
  std::map<int, std::string> bytes;
};

void ChangeName(Disk& disk, const Change& change) {
  if (change.kind != Kind::kMake) disk.names.erase(change.name);
  if (change.kind == Kind::kMake) disk.names[change.name] = change.file;
  if (change.kind == Kind::kMove) disk.names[change.text] = change.file;
}

/// Everything that a disk may hold if the power fails after `done`. Unsynced changes may be there
/// or not: each name independently; of the bytes all, half or none.
std::vector<Disk> Outcomes(const Disk& old, std::span<const Change> done) {
  Disk sure = old;
  std::map<int, std::string> written = old.bytes;
  std::vector<Change> loose;
  for (const Change& change : done) {
    if (change.kind == Kind::kWrite) {
      written[change.file] += change.text;
    } else if (change.kind == Kind::kSync) {
      sure.bytes[change.file] = written[change.file];
    } else if (change.kind == Kind::kSyncFolder) {
      for (const Change& name : std::exchange(loose, {})) ChangeName(sure, name);
    } else {
      loose.push_back(change);
    }
  }
  std::vector<Disk> outcomes;
  for (unsigned subset = 0; subset < 1U << loose.size(); ++subset) {
    for (const std::size_t half : {0U, 1U, 2U}) {
      Disk disk = sure;
      for (unsigned i = 0; i < loose.size(); ++i) {
        if ((subset >> i & 1U) != 0) ChangeName(disk, loose[i]);
      }
      for (const auto& [file, bytes] : written) {
        if (bytes != sure.bytes[file]) disk.bytes[file] = bytes.substr(0, bytes.size() * half / 2);
      }
      outcomes.push_back(std::move(disk));
    }
  }
  return outcomes;
}

/// Whether a disk has one of the contents and the library can go on from there.
bool IsWell(const Folder& folder, Disk disk, const std::vector<std::string>& contents) {
  for (const auto& entry : fs::directory_iterator(folder)) fs::remove(entry.path());
  for (const auto& [name, file] : disk.names) {
    std::ofstream(folder / name, std::ios::binary) << disk.bytes[file];
  }
  const std::string bytes = BytesOf(folder / kName);
  if (std::ranges::find(contents, bytes) == contents.end()) return false;
  ASCIIObject().Setvalue(PathText(folder / kName), u"B", u"5");
  return BytesOf(folder / kName) == bytes + "[B]=5\r\n" &&
         std::distance(fs::directory_iterator(folder), {}) == 1;
}

/// Cuts the power after each of the changes; returns the number of possible disks, and how many of
/// them are not well.
std::pair<int, int> CutAfterEach(const Folder& folder, std::span<const Change> all,
                                 const std::string& old_bytes, const std::string& new_bytes) {
  const Disk old{{{kName, 0}}, {{0, old_bytes}}};
  int disks = 0;
  int lost = 0;
  for (std::size_t count = 0; count <= all.size(); ++count) {
    std::vector<std::string> contents = {new_bytes};
    if (count < all.size()) contents.push_back(old_bytes);
    for (Disk& disk : Outcomes(old, all.first(count))) {
      ++disks;
      lost += IsWell(folder, std::move(disk), contents) ? 0 : 1;
    }
  }
  return {disks, lost};
}

}  // namespace

bool PowerCuts(const Folder& folder) {
  const Folder file = folder / kName;
  const std::string old_bytes = "[A]=1\r\n[C]=" + std::string(20'000, 'x') + "\r\n";
  std::ofstream(file, std::ios::binary) << old_bytes;
  const SystemCalls calls = Recording();
  ASCIIObject({.file_rewriter = FileRewriterBy(calls)}).Setvalue(PathText(file), u"a", u"2");
  const std::string new_bytes = BytesOf(file);
  const auto lost_without = [&](Kind kind) {
    auto fewer = changes;
    std::erase_if(fewer, [&](const Change& change) { return change.kind == kind; });
    return CutAfterEach(folder, fewer, old_bytes, new_bytes).second;
  };
  const auto [disks, lost] = CutAfterEach(folder, changes, old_bytes, new_bytes);
  const int lost_unsynced = lost_without(Kind::kSync);
  const int lost_unnamed = lost_without(Kind::kSyncFolder);
  std::cout << "power cuts: after each of " << changes.size() << " calls, " << disks
            << " disks, lost " << lost << " (without the sync of the file it were " << lost_unsynced
            << ", of the folder " << lost_unnamed << ")" << std::endl;
  return lost == 0 && lost_unsynced > 0 && lost_unnamed > 0;
}

}  // namespace ZQ7Standard::Stress
