#include "catalogue.h"

#include <ZQ7Standard/RunTimeError.h>

#include <cstddef>
#include <deque>
#include <span>
#include <string>
#include <string_view>

#include "failures.h"
#include "values.h"

namespace ZQ7C {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

/// Pointers to the elements of a deque, which do not move.
template <typename T>
std::vector<const T*> PointersTo(const std::deque<T>& elements) {
  std::vector<const T*> pointers;
  pointers.reserve(elements.size());
  for (const T& element : elements) pointers.push_back(&element);
  return pointers;
}

uint32_t FlagIf(bool set, uint32_t flag) {
  return set ? flag : 0;
}

uint32_t FlagsOf(const ParameterInfo& parameter) {
  return FlagIf(parameter.optional, ZQ7_OPTIONAL) |
         FlagIf(parameter.by_reference, ZQ7_BY_REFERENCE) |
         FlagIf(parameter.nullable, ZQ7_NULLABLE);
}

uint32_t FlagsOf(const PropertyInfo& property) {
  return FlagIf(property.readable, ZQ7_READABLE) | FlagIf(property.writable, ZQ7_WRITABLE) |
         FlagIf(property.may_block, ZQ7_MAY_BLOCK);
}

uint32_t FlagsOf(const ClassInfo& owner) {
  return FlagIf(owner.creatable, ZQ7_CREATABLE) | FlagIf(!owner.events.empty(), ZQ7_HAS_EVENTS);
}

/// The catalogue in C, built on first use. Everything in it stays where it is, and is never
/// destroyed: finalizers of other languages may run after the program's own statics are gone.
class Catalogue {
 public:
  static const Catalogue& Get() {
    static const Catalogue& catalogue = *new Catalogue;
    return catalogue;
  }

  Catalogue(const Catalogue&) = delete;
  Catalogue& operator=(const Catalogue&) = delete;

  const Class& ClassOf(const ClassInfo& info) const {
    return classes_[static_cast<std::size_t>(&info - Classes().data())];
  }

  const std::vector<const zq7_class*>& ClassPointers() const { return class_pointers_; }
  const std::vector<const zq7_enumeration*>& EnumerationPointers() const {
    return enumeration_pointers_;
  }
  const std::vector<const zq7_error_info*>& ErrorPointers() const { return error_pointers_; }

 private:
  struct Enumeration {
    zq7_enumeration c = {};
    std::deque<zq7_enumerator> members = {};
    std::vector<const zq7_enumerator*> pointers = {};
  };

  Catalogue() {
    for (const ErrorInfo& info : Errors()) {
      errors_.push_back({.number = static_cast<int32_t>(info.error),
                         .name = Kept(info.name),
                         .text = Kept(info.text)});
    }
    error_pointers_ = PointersTo(errors_);
    for (const EnumerationInfo& info : Enumerations()) AddEnumeration(info);
    for (const Enumeration& enumeration : enumerations_) {
      enumeration_pointers_.push_back(&enumeration.c);
    }
    for (const ClassInfo& info : Classes()) AddClass(info);
    for (const Class& owner : classes_) class_pointers_.push_back(&owner.c);
  }
  ~Catalogue() = default;

  /// A copy that ends with NUL.
  const char* Kept(std::string_view text) { return texts_.emplace_back(text).c_str(); }

  void AddEnumeration(const EnumerationInfo& info) {
    Enumeration& enumeration = enumerations_.emplace_back();
    for (const EnumeratorInfo& member : info.members) {
      enumeration.members.push_back(
          {.name = Kept(member.name), .help = Kept(member.help), .value = member.value});
    }
    enumeration.pointers = PointersTo(enumeration.members);
    enumeration.c = {.name = Kept(info.name),
                     .help = Kept(info.help),
                     .details = Kept(info.details),
                     .members = enumeration.pointers.data(),
                     .member_count = enumeration.pointers.size()};
  }

  zq7_type TypeOf(const TypeInfo& type) {
    const EnumerationInfo* const known = type.enumeration;
    return {.tag = TagOf(type.type),
            .enumeration =
                known == nullptr
                    ? nullptr
                    : &enumerations_[static_cast<std::size_t>(known - Enumerations().data())].c,
            .object_class = Kept(type.object_class)};
  }

  /// Adds a member with its parameters to a class.
  void AddMember(Class& owner, const Member& member, const std::vector<ParameterInfo>& parameters,
                 zq7_member description) {
    auto& pointers = parameter_pointers_.emplace_back();
    for (const ParameterInfo& info : parameters) {
      zq7_parameter& parameter = parameters_.emplace_back();
      parameter = {.name = Kept(info.name),
                   .help = Kept(info.help),
                   .type = TypeOf(info.type),
                   .default_value = {},
                   .flags = FlagsOf(info)};
      Write(info.default_value, parameter.default_value);
      pointers.push_back(&parameter);
    }
    description.parameters = pointers.data();
    description.parameter_count = pointers.size();
    const zq7_member& kept = members_.emplace_back(description);
    owner.members.push_back(&kept);
    const auto place = static_cast<std::size_t>(kept.number);
    if (place >= owner.by_number.size()) owner.by_number.resize(place + 1);
    owner.by_number[place] = member;
    owner.by_number[place].c = &kept;
  }

  template <typename Info>
  zq7_member Described(const Info& info, zq7_member_kind kind) {
    return {.name = Kept(info.name),
            .number = info.number,
            .kind = kind,
            .flags = 0,
            .type = {.tag = ZQ7_OMITTED, .enumeration = nullptr, .object_class = ""},
            .parameters = nullptr,
            .parameter_count = 0,
            .help = Kept(info.help),
            .details = Kept(info.details),
            .subject = ""};
  }

  void AddClass(const ClassInfo& info) {
    Class& owner = classes_.emplace_back();
    for (const OperationInfo& operation : info.operations) {
      zq7_member description = Described(operation, ZQ7_OPERATION);
      description.flags = FlagIf(operation.may_block, ZQ7_MAY_BLOCK);
      description.type = TypeOf(operation.result);
      description.subject = Kept(operation.subject);
      AddMember(owner, {.operation = &operation}, operation.parameters, description);
    }
    for (const PropertyInfo& property : info.properties) {
      zq7_member description = Described(property, ZQ7_PROPERTY);
      description.flags = FlagsOf(property);
      description.type = TypeOf(property.type);
      AddMember(owner, {.property = &property}, {}, description);
    }
    for (const EventInfo& event : info.events) {
      AddMember(owner, {.event = &event}, event.parameters, Described(event, ZQ7_EVENT));
    }
    owner.c = {.name = Kept(info.name),
               .help = Kept(info.help),
               .details = Kept(info.details),
               .flags = FlagsOf(info),
               .members = owner.members.data(),
               .member_count = owner.members.size()};
  }

  std::deque<std::string> texts_;
  std::deque<zq7_error_info> errors_;
  std::deque<Enumeration> enumerations_;
  std::deque<zq7_parameter> parameters_;
  std::deque<std::vector<const zq7_parameter*>> parameter_pointers_;
  std::deque<zq7_member> members_;
  std::deque<Class> classes_;
  std::vector<const zq7_error_info*> error_pointers_;
  std::vector<const zq7_enumeration*> enumeration_pointers_;
  std::vector<const zq7_class*> class_pointers_;
};

template <typename T>
const T* const* Counted(const std::vector<const T*>& pointers, size_t* count) {
  if (count != nullptr) *count = pointers.size();
  return pointers.data();
}

}  // namespace

const Class& ClassOf(const ClassInfo& info) {
  return Catalogue::Get().ClassOf(info);
}

}  // namespace ZQ7C

const zq7_class* const* zq7_classes(size_t* count) {
  return ZQ7C::Counted(ZQ7C::Catalogue::Get().ClassPointers(), count);
}

const zq7_enumeration* const* zq7_enumerations(size_t* count) {
  return ZQ7C::Counted(ZQ7C::Catalogue::Get().EnumerationPointers(), count);
}

const zq7_error_info* const* zq7_errors(size_t* count) {
  return ZQ7C::Counted(ZQ7C::Catalogue::Get().ErrorPointers(), count);
}

const zq7_class* zq7_find_class(const char* name) {
  if (name == nullptr) return nullptr;
  const auto* const info = ZQ7Standard::Automation::FindClass(name);
  return info == nullptr ? nullptr : &ZQ7C::ClassOf(*info).c;
}

const zq7_member* zq7_find_member(const zq7_class* owner, const char* name) {
  if (owner == nullptr || name == nullptr) return nullptr;
  for (size_t i = 0; i < owner->member_count; ++i) {
    if (ZQ7Standard::Automation::SameName(owner->members[i]->name, name)) return owner->members[i];
  }
  return nullptr;
}
