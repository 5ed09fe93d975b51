#include "bench/registry_inputs.h"

#include <algorithm>
#include <random>

#include "tests/support/temp_folder.h"

namespace ZQ7Standard::Bench {
namespace {

Entry MakeEntry(int key, int value) {
  const std::string number = std::to_string(key);
  const std::string last = std::to_string(value);
  return {FromUtf8("Software\\Siam Trading\\Branch " + number), FromUtf8("Last Number " + last),
          "software\\siam trading\\branch " + number, "last number " + last};
}

}  // namespace

const std::vector<Entry>& Entries() {
  static const std::vector<Entry> entries = [] {
    std::vector<Entry> made;
    for (int key = 0; key < 16; ++key) {
      for (int value = 0; value < 64; ++value) made.push_back(MakeEntry(key, value));
    }
    std::ranges::shuffle(made, std::mt19937{});
    return made;
  }();
  return entries;
}

const std::filesystem::path& DatabaseFolder() {
  static const TempFolder folder;
  return folder.Native();
}

}  // namespace ZQ7Standard::Bench
