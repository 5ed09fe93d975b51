#include "bench/settings.h"

#include <ZQ7Standard/platform/path_text.h>

#include <array>
#include <fstream>

namespace ZQ7Standard::Bench {
namespace {

constexpr std::array kSubjects = {"Company", "PosPaper", "DocumentNumber", "Term", "PrinterName"};

std::string Joined(std::string_view before_key, std::string_view before_value) {
  std::string bytes;
  for (const std::string& key : SettingKeys()) {
    bytes.append(before_key).append(key).append(before_value).append(key.rbegin(), key.rend());
    bytes.append("\r\n");
  }
  return bytes;
}

}  // namespace

const std::vector<std::string>& SettingKeys() {
  static const std::vector<std::string> keys = [] {
    std::vector<std::string> made;
    for (std::size_t i = 0; i < 200; ++i) {
      made.push_back(std::string(kSubjects[i % kSubjects.size()]).append(std::to_string(i)));
    }
    return made;
  }();
  return keys;
}

std::string SettingsAsLines() {
  return Joined("[", "]=");
}

std::string SettingsAsGroup() {
  return std::string("[").append(kGroup).append("]\n").append(Joined("", "="));
}

ScratchFile::ScratchFile(Place place, std::string_view bytes)
    : folder_(place == Place::kMemory ? "/dev/shm" : std::filesystem::temp_directory_path()),
      name_(Folder() + "/set.ini") {
  std::ofstream(name_, std::ios::binary) << bytes;
}

Text ScratchFile::Path() const {
  return PathText(name_);
}

}  // namespace ZQ7Standard::Bench
