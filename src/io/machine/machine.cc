#include <ZQ7Standard/Names.h>
#include <ZQ7Standard/StandardObject.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "base/ascii.h"
#include "base/fields.h"
#include "base/raise.h"
#include "platform/service_set.h"

namespace ZQ7Standard {
namespace {

constexpr int kLastInRow = CSIDL_APPDATA;
constexpr int kGap = 15;  // the only number up to there that is no folder

bool IsFolder(VirtualFolder folder) {
  const auto number = static_cast<std::int32_t>(folder);
  return (number >= 0 && number <= kLastInRow && number != kGap) || number == CSIDL_LOCAL_APPDATA ||
         number == CSIDL_MYPICTURES;
}

/// The name that is `typed` in another case. Raises 438 with the nearest if there is none.
std::string_view FindName(const std::vector<std::string_view>& names, TextView typed,
                          const Where& where) {
  for (const std::string_view name : names) {
    if (EqualsIgnoringAsciiCase(FromUtf8(name), typed)) return name;
  }
  const std::string nearest(NearestName(Utf8(typed), names));
  Raise(Error::kUnsupportedMember, where, typed,
        nearest.empty() ? nearest : "did you mean " + nearest + "?");
}

ManagementClass FindClass(Management& management, TextView typed) {
  const std::vector<ManagementClass> classes = management.Classes();
  std::vector<std::string_view> names;
  names.reserve(classes.size());
  for (const ManagementClass& known : classes) names.push_back(known.name);
  const std::string_view name = FindName(names, typed, {"QueryManagement", "ClassName"});
  return *std::ranges::find(classes, name, &ManagementClass::name);
}

/// A property and the value that it must have.
struct Comparison {
  TextView property;
  TextView value;
};

Comparison ReadCondition(TextView condition) {
  const std::size_t equals = condition.find(u'=');
  const TextView property = TrimBack(TrimFront(condition.substr(0, equals)));
  if (equals == TextView::npos || property.empty()) {
    Raise(Error::kInvalidArgument, {"QueryManagement", "Condition"}, condition);
  }
  return {property, TrimBack(TrimFront(condition.substr(equals + 1)))};
}

}  // namespace

Text StandardObject::GetComputerName() const {
  return Named({"GetComputerName"}, [&] { return services_->Machine().ComputerName(); });
}

Text StandardObject::GetDiskSerialNumber(TextView Path) const {
  return Named({"GetDiskSerialNumber", "Path"},
               [&] { return services_->Machine().DiskSerialNumber(Path); });
}

Text StandardObject::GetVolumeSerialNumber(TextView Path) const {
  return Named({"GetVolumeSerialNumber", "Path"},
               [&] { return services_->Machine().VolumeSerialNumber(Path); });
}

std::vector<Text> StandardObject::QueryManagement(TextView ClassName, TextView PropertyName,
                                                  TextView Condition) const {
  return Named({"QueryManagement"}, [&] {
    Management& management = services_->Management();
    const ManagementClass asked = FindClass(management, ClassName);
    std::vector<std::string_view> properties = {
        FindName(asked.properties, PropertyName, {"QueryManagement", "PropertyName"})};
    TextView wanted;
    if (!Condition.empty()) {
      const Comparison comparison = ReadCondition(Condition);
      wanted = comparison.value;
      properties.push_back(
          FindName(asked.properties, comparison.property, {"QueryManagement", "Condition"}));
    }
    std::vector<Text> found;
    for (const std::vector<Text>& texts : management.Read(asked.name, properties)) {
      const bool chosen = Condition.empty() || EqualsIgnoringAsciiCase(texts.back(), wanted);
      if (chosen) found.push_back(texts.front());
    }
    return found;
  });
}

Text StandardObject::GetSpecialFolder(VirtualFolder Folder) const {
  if (!IsFolder(Folder)) {
    Raise(Error::kInvalidArgument, {"GetSpecialFolder", "Folder"},
          static_cast<std::int32_t>(Folder));
  }
  return Named({"GetSpecialFolder", "Folder"},
               [&] { return services_->SpecialFolders().PathOf(Folder); });
}

Text StandardObject::GetFileVersion(TextView Path) const {
  return Named({"GetFileVersion", "Path"},
               [&] { return services_->FileVersions().VersionOf(Path); });
}

}  // namespace ZQ7Standard
