#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/platform/registry.h>

#include "bench/measure.h"
#include "bench/registry_inputs.h"

namespace ZQ7Standard::Bench {
namespace {

RegistryObject OpenRegistry() {
  const auto folder = DatabaseFolder() / "registry";
  return RegistryObject({.registry = SystemRegistry({.user = folder, .machine = folder})});
}

/// A registry with a number in each of the machine's entries, and a text in each of the user's.
RegistryObject FilledRegistry() {
  static const bool filled = [] {
    const RegistryObject registry = OpenRegistry();
    for (const Entry& entry : Entries()) {
      registry.UpdateKeyValueLong(HKEY_LOCAL_MACHINE, entry.path, entry.name, 2567);
      registry.UpdateKeyValueString(HKEY_CURRENT_USER, entry.path, entry.name, u"ใบกำกับภาษี 2567");
    }
    return true;
  }();
  benchmark::DoNotOptimize(filled);
  return OpenRegistry();
}

void ReadNumber(benchmark::State& state) {
  const RegistryObject registry = FilledRegistry();
  Measure(state, Entries(), [&registry](const Entry& entry) {
    return registry.GetKeyValueLong(HKEY_LOCAL_MACHINE, entry.path, entry.name);
  });
}
BENCHMARK(ReadNumber)->Name("registry_number/ours");

void ReadText(benchmark::State& state) {
  const RegistryObject registry = FilledRegistry();
  Measure(state, Entries(), [&registry](const Entry& entry) {
    return registry.GetKeyValueString(HKEY_CURRENT_USER, entry.path, entry.name);
  });
}
BENCHMARK(ReadText)->Name("registry_text/ours");

/// The first call on an object, and closing what it opened.
void FirstRead(benchmark::State& state) {
  FilledRegistry();
  Measure(state, Entries(), [](const Entry& entry) {
    return OpenRegistry().GetKeyValueLong(HKEY_LOCAL_MACHINE, entry.path, entry.name);
  });
}
BENCHMARK(FirstRead)->Name("registry_first/ours");

/// On the disk when it returns; real time is measured, because the disk's time counts, not the
/// processor's.
void WriteNumber(benchmark::State& state) {
  const RegistryObject registry = FilledRegistry();
  int number = 0;
  Measure(state, std::vector(Entries().begin(), Entries().begin() + 8), [&](const Entry& entry) {
    return registry.UpdateKeyValueLong(HKEY_LOCAL_MACHINE, entry.path, entry.name, ++number);
  });
}
BENCHMARK(WriteNumber)->Name("registry_update/ours")->UseRealTime();

}  // namespace
}  // namespace ZQ7Standard::Bench
