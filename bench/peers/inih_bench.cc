#include <ini.h>

#include "bench/measure.h"
#include "bench/settings.h"

namespace ZQ7Standard::Bench {
namespace {

/// A key searched for, and the value found.
struct Search {
  const std::string& key;
  std::string value;
};

int TakeSetting(void* search, const char* /*group*/, const char* key, const char* value) {
  auto& wanted = *static_cast<Search*>(search);
  if (wanted.key == key) wanted.value = value;
  return 1;
}

void GetValueInih(benchmark::State& state) {
  const ScratchFile file(ScratchFile::Place::kDisk, SettingsAsGroup());
  Measure(state, SettingKeys(), [&](const std::string& key) {
    Search search{key, {}};
    ini_parse(file.Name().c_str(), TakeSetting, &search);
    return search.value;
  });
}
BENCHMARK(GetValueInih)->Name("get_value/inih");

}  // namespace
}  // namespace ZQ7Standard::Bench
