#include <ZQ7Standard/ASCIIObject.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdio>

#include "bench/measure.h"
#include "bench/settings.h"

namespace ZQ7Standard::Bench {
namespace {

using Place = ScratchFile::Place;

constexpr int kDiskWrites = 20;  // per iteration: each takes milliseconds

std::vector<Text> KeyTexts(int count = 200) {
  std::vector<Text> keys;
  for (const std::string& key : SettingKeys()) keys.push_back(FromUtf8(key));
  keys.resize(static_cast<std::size_t>(count));
  return keys;
}

void GetValue(benchmark::State& state) {
  const ScratchFile file(Place::kDisk, SettingsAsLines());
  const ASCIIObject object;
  Measure(state, KeyTexts(),
          [&, path = file.Path()](const Text& key) { return object.GetValue(path, key); });
}
BENCHMARK(GetValue)->Name("get_value/ours");

/// The minimum for reading the file.
void OpenReadClose(benchmark::State& state) {
  const ScratchFile file(Place::kDisk, SettingsAsLines());
  Measure(state, SettingKeys(), [&](const std::string&) {
    std::array<char, 65536> buffer;
    const int descriptor = open(file.Name().c_str(), O_RDONLY | O_CLOEXEC);
    const ssize_t count = read(descriptor, buffer.data(), buffer.size());
    close(descriptor);
    benchmark::DoNotOptimize(buffer);
    return count;
  });
}
BENCHMARK(OpenReadClose)->Name("get_value/bare");

void SetValue(benchmark::State& state, Place place, int count) {
  const ScratchFile file(place, SettingsAsLines());
  const ASCIIObject object;
  Measure(state, KeyTexts(count), [&, path = file.Path()](const Text& key) {
    object.Setvalue(path, key, key);
    return 0;
  });
}
BENCHMARK_CAPTURE(SetValue, memory, Place::kMemory, 200)->Name("set_value/ours");
BENCHMARK_CAPTURE(SetValue, disk, Place::kDisk, kDiskWrites)
    ->Name("set_value_disk/ours")
    ->UseRealTime();

bool Sync(int descriptor) {
  const int failed = fsync(descriptor);
  return close(descriptor) == 0 && failed == 0;
}

/// The minimum for writing without losing anything: a file beside the old one is written, synced
/// and renamed; then, with `sync_folder`, its new name is synced too.
void WriteSyncRename(benchmark::State& state, bool sync_folder) {
  const std::string bytes = SettingsAsLines();
  const ScratchFile file(Place::kDisk, bytes);
  const std::string temporary = file.Name() + "~";
  Measure(state, KeyTexts(kDiskWrites), [&](const Text&) {
    const int descriptor = open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    return write(descriptor, bytes.data(), bytes.size()) >= 0 && Sync(descriptor) &&
           std::rename(temporary.c_str(), file.Name().c_str()) == 0 &&
           (!sync_folder || Sync(open(file.Folder().c_str(), O_RDONLY | O_CLOEXEC)));
  });
}
BENCHMARK_CAPTURE(WriteSyncRename, file, false)->Name("set_value_disk/bare")->UseRealTime();
BENCHMARK_CAPTURE(WriteSyncRename, folder, true)->Name("set_value_disk/bare_folder")->UseRealTime();

}  // namespace
}  // namespace ZQ7Standard::Bench
