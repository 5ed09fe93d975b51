#ifndef ZQ7STANDARD_SRC_AUTOMATION_FAILURE_H_
#define ZQ7STANDARD_SRC_AUTOMATION_FAILURE_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <span>
#include <string_view>

namespace ZQ7Standard::Automation {

/// Throws the exception that is being handled again, as a `RunTimeError` that names `member`: nested
/// operations and services use other names or none. An exception without a number becomes an
/// automation error, but for a lack of memory.
[[noreturn]] void RethrowAs(const ClassInfo& owner, std::string_view member,
                            std::span<const ParameterInfo> parameters);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_FAILURE_H_
