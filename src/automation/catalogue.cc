#include <ZQ7Standard/automation/catalogue.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <unordered_map>

#include "automation/classes.h"
#include "automation/docstrings.h"
#include "base/ascii.h"

namespace ZQ7Standard::Automation {
namespace {

constexpr char16_t FoldedCharacter(char c) {
  return AsciiUpper(static_cast<unsigned char>(c));
}

struct EqualNames {
  bool operator()(std::string_view a, std::string_view b) const { return SameName(a, b); }
};

/// The FNV-1a hash of a name.
struct NameHash {
  std::size_t operator()(std::string_view name) const {
    std::uint64_t hash = 14695981039346656037U;
    for (const char c : name) hash = (hash ^ FoldedCharacter(c)) * 1099511628211U;
    return hash;
  }
};

template <typename Info>
using Index = std::unordered_map<std::string_view, const Info*, NameHash, EqualNames>;

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
  owner.details = Docstring(owner.name);
  for (auto& operation : owner.operations) {
    operation.details = Docstring(QualifiedName(owner, operation.name));
  }
  for (auto& property : owner.properties) {
    property.details = Docstring(QualifiedName(owner, property.name));
    if (!property.details.empty() || property.write == nullptr) continue;
    property.details = Docstring(QualifiedName(owner, "Set" + std::string(property.name)));
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

bool SameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, FoldedCharacter, FoldedCharacter);
}

std::string QualifiedName(const ClassInfo& owner, std::string_view member) {
  return std::string(owner.name).append(".").append(member);
}

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
    return SameName(property.name, name);
  });
  return found == owner.properties.end() ? nullptr : &*found;
}

}  // namespace ZQ7Standard::Automation
