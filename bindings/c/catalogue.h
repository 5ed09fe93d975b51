#ifndef ZQ7STANDARD_BINDINGS_C_CATALOGUE_H_
#define ZQ7STANDARD_BINDINGS_C_CATALOGUE_H_

#include <ZQ7Standard/automation/catalogue.h>
#include <zq7standard.h>

#include <cstddef>
#include <vector>

namespace ZQ7C {

/// A member of a class; of the three descriptions, the one of its kind is set.
struct Member {
  const zq7_member* c = nullptr;
  const ZQ7Standard::Automation::OperationInfo* operation = nullptr;
  const ZQ7Standard::Automation::PropertyInfo* property = nullptr;
  const ZQ7Standard::Automation::EventInfo* event = nullptr;
};

struct Class {
  zq7_class c = {};
  std::vector<const zq7_member*> members = {};
  std::vector<Member> by_number = {Member()};  ///< the first stands for numbers without a member

  /// The member with that number; empty if there is none.
  const Member& Find(int32_t number) const {
    const auto place = static_cast<std::size_t>(number);
    return by_number[place < by_number.size() ? place : 0];
  }
};

/// What the C catalogue knows of a class of the catalogue.
const Class& ClassOf(const ZQ7Standard::Automation::ClassInfo& info);

}  // namespace ZQ7C

#endif  // ZQ7STANDARD_BINDINGS_C_CATALOGUE_H_
