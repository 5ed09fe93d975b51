#ifndef ZQ7STANDARD_TOOLS_ZQ7_MEMBERS_H_
#define ZQ7STANDARD_TOOLS_ZQ7_MEMBERS_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <string_view>

namespace ZQ7Tool {

/// What "CLASS.MEMBER" names: a class and at most one of its members.
struct Member {
  const ZQ7Standard::Automation::ClassInfo* owner = nullptr;
  const ZQ7Standard::Automation::OperationInfo* operation = nullptr;
  const ZQ7Standard::Automation::PropertyInfo* property = nullptr;
  const ZQ7Standard::Automation::EventInfo* event = nullptr;
};

/// The class or member with that name; if there is none, throws `WrongUse` with the nearest.
Member MemberNamed(std::string_view name);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_MEMBERS_H_
