#include <glib.h>

#include "bench/measure.h"
#include "bench/settings.h"

namespace ZQ7Standard::Bench {
namespace {

using Place = ScratchFile::Place;

GKeyFile* Load(const ScratchFile& file) {
  GKeyFile* const settings = g_key_file_new();
  g_key_file_load_from_file(settings, file.Name().c_str(), G_KEY_FILE_KEEP_COMMENTS, nullptr);
  return settings;
}

void GetValueGlib(benchmark::State& state) {
  const ScratchFile file(Place::kDisk, SettingsAsGroup());
  Measure(state, SettingKeys(), [&](const std::string& key) {
    GKeyFile* const settings = Load(file);
    gchar* const value = g_key_file_get_string(settings, kGroup, key.c_str(), nullptr);
    const std::string result = value;
    g_free(value);
    g_key_file_free(settings);
    return result;
  });
}
BENCHMARK(GetValueGlib)->Name("get_value/glib");

void SetValueGlib(benchmark::State& state) {
  const ScratchFile file(Place::kMemory, SettingsAsGroup());
  Measure(state, SettingKeys(), [&](const std::string& key) {
    GKeyFile* const settings = Load(file);
    g_key_file_set_string(settings, kGroup, key.c_str(), key.c_str());
    const bool saved = g_key_file_save_to_file(settings, file.Name().c_str(), nullptr) != 0;
    g_key_file_free(settings);
    return saved;
  });
}
BENCHMARK(SetValueGlib)->Name("set_value/glib");

}  // namespace
}  // namespace ZQ7Standard::Bench
