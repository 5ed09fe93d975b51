#ifndef ZQ7STANDARD_TOOLS_ZQ7_HELP_H_
#define ZQ7STANDARD_TOOLS_ZQ7_HELP_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <cstddef>
#include <string>
#include <string_view>

/// The output of `zq7 list` and `zq7 help`, in lines of at most `width` columns as far as words
/// allow.
namespace ZQ7Tool {

/// Every class with its one-line help.
std::string ClassList(std::size_t width);

/// The name of a class and its one-line help.
std::string ClassLine(const ZQ7Standard::Automation::ClassInfo& owner, std::size_t width);

/// The properties, operations by subject, and events of a class.
std::string MemberList(const ZQ7Standard::Automation::ClassInfo& owner, std::size_t width);

/// The documentation of a class or a member; `WrongUse` if there is none with that name.
std::string Help(std::string_view name, std::size_t width);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_HELP_H_
