#include <ZQ7Standard/DiskObject.h>
#include <sys/stat.h>

#include <array>
#include <cstdlib>

#include "bench/measure.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard::Bench {
namespace {

// 2,000 files of 2,000 bytes in 20 folders.
constexpr const char* kMakeTree =
    "for i in $(seq 20); do mkdir -p from/$i; head -c 200000 /dev/urandom |"
    " split -a 2 -d -b 2000 - from/$i/invoice; done";

/// Measures `copy` from the folder "from" to "to", which is removed before each run.
template <typename Copy>
void MeasureCopies(benchmark::State& state, Copy copy) {
  const TempFolder folder("/dev/shm");
  folder.Run(kMakeTree);
  for (auto _ : state) {
    benchmark::DoNotOptimize(copy(folder));
    state.PauseTiming();
    std::filesystem::remove_all(folder.Native() / "to");
    state.ResumeTiming();
  }
  using benchmark::Counter;
  const auto calls = static_cast<double>(state.iterations());
  state.counters["call"] = Counter(calls, Counter::kIsRate | Counter::kInvert);
}

void CopyTree(benchmark::State& state) {
  const DiskObject disk;
  MeasureCopies(state, [&disk](const TempFolder& folder) {
    return disk.XCopyFile(folder.Path("from"), folder.Path("to"));
  });
}
BENCHMARK(CopyTree)->Name("copy_tree/ours")->UseRealTime();

void CopyTreeCp(benchmark::State& state) {
  MeasureCopies(state, [](const TempFolder& folder) {
    const std::string native = folder.Native();
    return std::system(("cp -r " + native + "/from " + native + "/to").c_str());
  });
}
BENCHMARK(CopyTreeCp)->Name("copy_tree/cp")->UseRealTime();

void CopyUnchanged(benchmark::State& state) {
  const TempFolder folder;
  folder.Run("date >from; cp -p from to");
  const DiskObject disk;
  Measure(
      state, std::array{folder.Path("from")},
      [&disk, to = folder.Path("to")](const Text& from) { return disk.CopyFileCheck(from, to); });
}
BENCHMARK(CopyUnchanged)->Name("copy_unchanged/ours");

/// The minimum for reading two times.
void TwoStatuses(benchmark::State& state) {
  const TempFolder folder;
  folder.Run("touch from to");
  const std::string to = folder.Native() / "to";
  Measure(state, std::array{std::string(folder.Native() / "from")}, [&to](const std::string& from) {
    struct stat status {};
    return stat(from.c_str(), &status) + stat(to.c_str(), &status);
  });
}
BENCHMARK(TwoStatuses)->Name("copy_unchanged/bare");

}  // namespace
}  // namespace ZQ7Standard::Bench
