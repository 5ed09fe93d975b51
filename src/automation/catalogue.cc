#include <ZQ7Standard/automation/catalogue.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <unordered_map>

#include "automation/classes.h"
#include "automation/docstrings.h"
#include "automation/names.h"

namespace ZQ7Standard::Automation {
namespace {

template <typename Info>
using Index = std::unordered_map<std::string_view, const Info*, NameHash, SameName>;

template <typename Info>
Index<Info> IndexOf(std::span<const Info> entries) {
  Index<Info> index;
  for (const Info& entry : entries) index.emplace(entry.name, &entry);
  return index;
}

template <typename Info>
const Info* Find(const Index<Info>& index, std::string_view name) {
  const auto found = index.find(name);
  return found == index.end() ? nullptr : found->second;
}

/// The comments of the headers: on a property, of what reads it or else sets it.
ClassInfo Documented(ClassInfo owner) {
  const std::string prefix = std::string(owner.name) + ".";
  owner.details = Docstring(owner.name);
  for (auto& operation : owner.operations) {
    operation.details = Docstring(prefix + std::string(operation.name));
  }
  for (auto& property : owner.properties) {
    property.details = Docstring(prefix + std::string(property.name));
    if (!property.details.empty() || property.write == nullptr) continue;
    property.details = Docstring(prefix + "Set" + std::string(property.name));
  }
  return owner;
}

std::vector<ClassInfo> AllClasses() {
  std::vector<ClassInfo> classes;
  for (const auto entry :
       {ASCIIObjectEntry, BahtStringObjectEntry, BitByteObjectEntry, CImageInfoEntry,
        DiskObjectEntry, GridValueObjectEntry, PeripheralObjectEntry, PrintObjectEntry,
        RegistryObjectEntry, StandardObjectEntry, PrintPictureEntry, SerialPortEntry}) {
    classes.push_back(Documented(entry()));
  }
  return classes;
}

/// The classes and what finds them by name, made at the first use.
class Catalogue {
 public:
  static const Catalogue& Get() {
    static const Catalogue catalogue;
    return catalogue;
  }

  std::span<const ClassInfo> Classes() const { return classes_; }
  const ClassInfo* FindClass(std::string_view name) const { return Find(by_name_, name); }
  const OperationInfo* FindOperation(const ClassInfo& owner, std::string_view name) const {
    return Find(operations_[static_cast<std::size_t>(&owner - classes_.data())], name);
  }

 private:
  Catalogue() {
    for (const ClassInfo& owner : classes_) {
      operations_.push_back(IndexOf<OperationInfo>(owner.operations));
    }
  }

  const std::vector<ClassInfo> classes_ = AllClasses();
  const Index<ClassInfo> by_name_ = IndexOf<ClassInfo>(classes_);
  std::vector<Index<OperationInfo>> operations_;
};

}  // namespace

std::span<const ClassInfo> Classes() {
  return Catalogue::Get().Classes();
}

const ClassInfo* FindClass(std::string_view name) {
  return Catalogue::Get().FindClass(name);
}

const OperationInfo* FindOperation(const ClassInfo& owner, std::string_view name) {
  return Catalogue::Get().FindOperation(owner, name);
}

const PropertyInfo* FindProperty(const ClassInfo& owner, std::string_view name) {
  const auto found = std::ranges::find_if(owner.properties, [&](const PropertyInfo& property) {
    return SameName{}(property.name, name);
  });
  return found == owner.properties.end() ? nullptr : &*found;
}

}  // namespace ZQ7Standard::Automation
