#ifndef ZQ7STANDARD_TOOLS_ZQ7_ENUMERATORS_H_
#define ZQ7STANDARD_TOOLS_ZQ7_ENUMERATORS_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <optional>
#include <string>
#include <string_view>

namespace ZQ7Tool {

/// Returns the value of the member with that name, ignoring case; nullopt if there is no such
/// member.
std::optional<std::int32_t> ValueOfEnumerator(
    const ZQ7Standard::Automation::EnumerationInfo& enumeration, std::string_view name);

/// " Did you mean X?" for the member nearest to a misspelt name; empty if none is close.
std::string EnumeratorHint(const ZQ7Standard::Automation::EnumerationInfo& enumeration,
                           std::string_view misspelt);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_ENUMERATORS_H_
