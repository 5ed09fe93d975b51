#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/platform/path_text.h>
#include <ZQ7Standard/platform/printers.h>
#include <ZQ7Standard/platform/registry.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <functional>
#include <memory>
#include <random>
#include <thread>
#include <utility>

#include "bench/stress/stress.h"
#include "tests/support/children.h"

namespace ZQ7Standard::Stress {
namespace {

constexpr int kKills = 500;
constexpr int kHalf = -1;  // something incomplete, or that nobody wrote

/// Something that a process does in numbered steps until it is killed. The result of a step must
/// survive once it has returned.
struct Work {
  std::string name;
  std::function<int()> last_there;  ///< the last step whose complete result is there
  /// Prepares the process that does the steps, and returns a function that does one.
  std::function<std::function<void(int)>()> begin;
  Folder cleared = {};  ///< emptied after each kill, if set
};

/// Does the steps after `first`, writing the number of each to `done`.
int DoSteps(const Work& work, int first, int done) {
  const auto step = work.begin();
  for (int number = first;; ++number) {
    step(number);
    if (write(done, &number, sizeof number) != sizeof number) return 1;
  }
}

/// Kills a process that does the steps after `last`, once it has done `steps` of them and a further
/// part of a step's time has passed. Returns the last step done.
int Kill(const Work& work, int last, unsigned steps, double part_of_step) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return kHalf;
  const pid_t child = Begin([&] { return DoSteps(work, last + 1, ends[1]); });
  close(ends[1]);
  const auto next = [&] { return read(ends[0], &last, sizeof last) == sizeof last; };
  auto time = std::chrono::steady_clock::now();
  auto step = std::chrono::steady_clock::duration(std::chrono::milliseconds(1));
  for (unsigned i = 0; i < steps && next(); ++i) {
    step = std::chrono::steady_clock::now() - std::exchange(time, std::chrono::steady_clock::now());
  }
  std::this_thread::sleep_for(step * part_of_step);
  kill(child, SIGKILL);
  const bool was_killed = End(child) == -SIGKILL;
  while (next()) {
  }
  close(ends[0]);
  return was_killed ? last : kHalf;
}

void Clear(const Folder& folder) {
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
}

bool KillOften(const Work& work) {
  Tally tally(work.name);
  std::minstd_rand random{std::random_device{}()};
  std::uniform_real_distribution<double> part(0, 1);
  int steps = 0;
  int unseen = 0;
  for (int i = 0; i < kKills; ++i) {
    const int before = work.last_there();
    const int done = Kill(work, before, static_cast<unsigned>(i % 3), part(random));
    const int there = work.last_there();
    steps += done - before;
    unseen += there > done ? 1 : 0;
    tally.Check(
        done != kHalf && (there == done || there == done + 1),
        "step " + std::to_string(done) + " was done, " + std::to_string(there) + " is there");
    if (!work.cleared.empty()) Clear(work.cleared);
  }
  return tally.Report("kills in " + std::to_string(steps) + " steps, of which " +
                      std::to_string(unseen) + " were done but had not returned");
}

std::string SettingsOf(int number) {
  return "[A]=1\r\n[N]=" + std::to_string(number) + "\r\n[B]=" + std::string(4'000, 'x') + "\r\n";
}

Work Settings(const Folder& folder) {
  const Folder file = folder / "set.ini";
  std::ofstream(file, std::ios::binary) << SettingsOf(0);
  const auto last_there = [file] {
    const int number = std::stoi(Utf8(ASCIIObject().GetValue(PathText(file), u"N")));
    return BytesOf(file) == SettingsOf(number) ? number : kHalf;
  };
  return {"settings", last_there, [file] {
            return [file](int number) {
              ASCIIObject().Setvalue(PathText(file), u"N", FromUtf8(std::to_string(number)));
            };
          }};
}

/// The number of files in the folder, all of which must be `whole`.
int CountOf(const Folder& folder, const std::function<bool(const Folder& file)>& whole) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (!whole(entry.path())) return kHalf;
    ++count;
  }
  return count;
}

Work NewFiles(const Folder& folder) {
  const auto last_there = [folder] {
    return CountOf(folder, [](const Folder& file) {
      return BytesOf(file) == std::string(20'000, file.filename().string().back());
    });
  };
  return {"new files", last_there,
          [folder] {
            return [folder](int number) {
              const std::string name = std::to_string(number);
              ASCIIObject().SaveStringToTextFile(PathText(folder / name),
                                                 FromUtf8(std::string(20'000, name.back())));
            };
          },
          folder};
}

Work Pages(const Folder& folder) {
  const auto last_there = [folder] {
    return CountOf(folder, [](const Folder& file) {
      const std::string bytes = BytesOf(file);
      return bytes.starts_with("%PDF-") && bytes.ends_with("%%EOF\n") && file.extension() == ".pdf";
    });
  };
  return {"pages", last_there,
          [folder] {
            const auto printer =
                std::make_shared<PrintObject>(Services{.printers = SystemPrinters(folder)});
            return [printer](int /*number*/) {
              printer->PrintGraphicText(u"ใบกำกับภาษี", 20, 30);
              printer->PrintOut();
            };
          },
          folder};
}

Work RegistryNumbers(const Folder& folder) {
  const auto object = [folder] {
    return RegistryObject({.registry = SystemRegistry({folder, folder})});
  };
  const auto last_there = [object] {
    return object().GetKeyValueLong(HKEY_CURRENT_USER, u"Software\\Stress", u"N");
  };
  return {"registry", last_there, [object] {
            return [registry = std::make_shared<RegistryObject>(object())](int number) {
              registry->UpdateKeyValueLong(HKEY_CURRENT_USER, u"Software\\Stress", u"N", number);
            };
          }};
}

}  // namespace

bool Kills(const Folder& folder) {
  bool well = true;
  for (const auto& make : {Settings, NewFiles, RegistryNumbers, Pages}) {
    Clear(folder);
    well = KillOften(make(folder)) && well;
  }
  return well;
}

}  // namespace ZQ7Standard::Stress
