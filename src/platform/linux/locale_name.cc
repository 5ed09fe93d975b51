#include "platform/linux/locale_name.h"

#include <unistd.h>

#include <array>
#include <cstddef>

namespace ZQ7Standard {
namespace {

/// Whether an environment entry may be one of the deciding ones, judging by two letters: LS_COLORS,
/// for one, is long.
bool MayDecide(const char* entry) {
  return entry[0] == 'L' && (entry[1] == 'C' || entry[1] == 'A' || entry[1] == 'O');
}

}  // namespace

// In a single pass instead of a lookup for each name.
LocaleName LocaleNameFromEnvironment() {
  constexpr std::array<std::string_view, 4> kVariables = {
      "LC_ALL=", "LC_TIME=", "LANG=", "LOCPATH="};
  std::array<std::string_view, 4> values;
  for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
    if (!MayDecide(*entry)) continue;
    const std::string_view text = *entry;
    for (std::size_t i = 0; i < kVariables.size(); ++i) {
      if (text.starts_with(kVariables[i])) values[i] = text.substr(kVariables[i].size());
    }
  }
  const auto& [all, time, lang, folder] = values;
  return {!all.empty() ? all : !time.empty() ? time : lang, folder};
}

}  // namespace ZQ7Standard
