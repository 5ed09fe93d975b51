#ifndef ZQ7STANDARD_BENCH_SETTINGS_H_
#define ZQ7STANDARD_BENCH_SETTINGS_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/support/temp_folder.h"

namespace ZQ7Standard::Bench {

/// The 200 keys of a settings file, such as "PosPaper017"; the same on each run.
const std::vector<std::string>& SettingKeys();

/// The settings file of the library, and the same settings as a group in the usual format.
std::string SettingsAsLines();
std::string SettingsAsGroup();

/// The name of that group.
inline constexpr const char* kGroup = "settings";

/// A file of `bytes` in a folder of its own; the destructor removes both.
class ScratchFile {
 public:
  /// In memory: on Linux's tmpfs. On disk: in the folder for temporary files.
  enum class Place { kMemory, kDisk };

  ScratchFile(Place place, std::string_view bytes);

  const std::string& Name() const { return name_; }
  const std::string& Folder() const { return folder_.Native().native(); }
  Text Path() const;

 private:
  TempFolder folder_;
  std::string name_;
};

}  // namespace ZQ7Standard::Bench

#endif  // ZQ7STANDARD_BENCH_SETTINGS_H_
