#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/DiskObject.h>
#include <ZQ7Standard/platform/message_box.h>
#include <ZQ7Standard/platform/path_text.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <vector>

#include "bench/stress/stress.h"
#include "platform/linux/descriptor.h"
#include "tests/support/children.h"

namespace ZQ7Standard::Stress {
namespace {

using std::chrono::steady_clock;

constexpr auto kTime = std::chrono::seconds(30);
constexpr int kWriters = 4;
constexpr int kKeys = 100;

// Each writer sets its keys to 1 in turn, then to 2, and so on.

std::string KeyOf(int writer, int key) {
  return "W" + std::to_string(writer) + "-" + std::to_string(key);
}

/// The settings of a file, 0 for those it lacks; nullopt if it is incomplete.
std::optional<std::map<std::string, int>> SettingsOf(const std::string& bytes) {
  std::map<std::string, int> settings;
  std::istringstream lines(bytes);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t end = line.find("]=");
    if (!line.starts_with('[') || !line.ends_with('\r') || end == std::string::npos ||
        lines.eof()) {
      return std::nullopt;
    }
    settings[line.substr(1, end - 1)] = std::stoi(line.substr(end + 2));
  }
  return settings;
}

/// How many settings had been made at the file's moment; nullopt if it never existed, because a
/// setting is missing that was made before another one.
std::optional<int> SettingsMade(const std::string& bytes) {
  auto settings = SettingsOf(bytes);
  if (!settings) return std::nullopt;
  int made = 0;
  for (int writer = 0; writer < kWriters; ++writer) {
    const int first = (*settings)[KeyOf(writer, 0)];
    for (int key = 0, before = first; key < kKeys; ++key) {
      const int value = (*settings)[KeyOf(writer, key)];
      if (value > before || value < first - 1) return std::nullopt;
      made += before = value;
    }
  }
  return made;
}

/// Sets all keys again and again; returns how many settings it made, or -1 after a failure.
int Write(const Folder& file, int writer, steady_clock::time_point end) {
  struct FailingBox final : MessageBox {
    void Show(const Message& /*message*/) override { failed = true; }
    bool failed = false;
  };
  const auto box = std::make_shared<FailingBox>();
  ASCIIObject object({.message_box = box});
  object.SetDisableMsgLevel(1);
  int round = 0;
  while (steady_clock::now() < end) {
    const Text value = FromUtf8(std::to_string(++round));
    for (int key = 0; key < kKeys; ++key) {
      object.Setvalue(PathText(file), FromUtf8(KeyOf(writer, key)), value);
    }
  }
  return box->failed ? -1 : round * kKeys;
}

/// Reads a file almost byte by byte.
std::string ReadSlowly(const Folder& file) {
  const Descriptor opened(open(file.c_str(), O_RDONLY));
  std::string bytes;
  std::array<char, 16> some{};
  for (ssize_t count = 0; (count = read(opened.Number(), some.data(), some.size())) > 0;) {
    bytes.append(some.data(), static_cast<std::size_t>(count));
    usleep(10);
  }
  return bytes;
}

/// Reads the file again and again, counting contents that never existed or are older than one
/// already seen.
int Look(const std::function<std::string()>& read_file, steady_clock::time_point end,
         const std::string& name) {
  Tally tally(name);
  int seen = 0;
  while (steady_clock::now() < end) {
    const auto made = SettingsMade(read_file());
    tally.Check(made && *made >= seen, "the file is not of a moment after the last");
    seen = made.value_or(seen);
  }
  return tally.Report("looks at the file") ? 0 : 1;
}

std::string Copy(const Folder& file, const Folder& copy) {
  DiskObject().CopyFileCheck(PathText(file), PathText(copy), true);
  return BytesOf(copy);
}

}  // namespace

bool Crowd(const Folder& folder) {
  const Folder file = folder / "set.ini";
  const auto end = steady_clock::now() + kTime;
  std::array<int, 2> results{};
  if (pipe(results.data()) != 0) return false;
  std::vector<pid_t> children;
  for (int writer = 0; writer < kWriters; ++writer) {
    children.push_back(Begin([&] {
      const int made = Write(file, writer, end);
      return write(results[1], &made, sizeof made) == sizeof made ? 0 : 1;
    }));
  }
  children.push_back(
      Begin([&] { return Look([&] { return ReadSlowly(file); }, end, "slow reader"); }));
  children.push_back(
      Begin([&] { return Look([&] { return Copy(file, folder / "copy"); }, end, "copier"); }));
  Tally tally("four writers");
  for (const pid_t child : children) tally.Check(End(child) == 0, "a process failed");
  int made = 0;
  for (int writer = 0, own = 0; writer < kWriters; ++writer) {
    tally.Check(read(results[0], &own, sizeof own) == sizeof own && own > 0, "a setting failed");
    made += own;
  }
  tally.Check(SettingsMade(BytesOf(file)) == made, "settings");
  return tally.Report("checks after " + std::to_string(made) + " settings");
}

}  // namespace ZQ7Standard::Stress
