#ifndef ZQ7STANDARD_PLATFORM_MANAGEMENT_H_
#define ZQ7STANDARD_PLATFORM_MANAGEMENT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/machine_files.h>

#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace ZQ7Standard {

/// A class of things that a machine has, such as "Win32_DiskDrive", and what it tells of
/// each.
struct ManagementClass {
  std::string_view name;
  std::vector<std::string_view> properties;
};

/// What `StandardObject::QueryManagement` asks.
class ZQ7STANDARD_EXPORT Management {
 public:
  virtual ~Management();

  virtual std::vector<ManagementClass> Classes() = 0;

  /// A list for each instance of a class: the texts of `properties`, in their order. Names
  /// are those of `Classes()`. What is not known is the empty text.
  virtual std::vector<std::vector<Text>> Read(std::string_view class_name,
                                              std::span<const std::string_view> properties) = 0;
};

/// What Linux tells in /proc and /sys. On Windows it is what the management service (WMI) tells of
/// the same classes and some more; each call may be made on any thread, and raises 429 if the
/// service cannot be reached, 70 if it takes more than ten seconds to answer.
ZQ7STANDARD_EXPORT std::shared_ptr<Management> SystemManagement(MachineFiles files = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_MANAGEMENT_H_
