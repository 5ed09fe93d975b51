#ifndef ZQ7STANDARD_TOOLS_ZQ7_CALL_H_
#define ZQ7STANDARD_TOOLS_ZQ7_CALL_H_

#include <ZQ7Standard/automation/invoke.h>

#include <string>
#include <string_view>
#include <vector>

namespace ZQ7Tool {

/// The words of `zq7 call`.
struct CallWords {
  std::string operation;               ///< "CLASS.OPERATION"
  std::vector<std::string> arguments;  ///< "ARG" and "NAME=ARG"
  std::vector<std::string> verbatim;   ///< after "--": never names
};

/// Calls an operation on a new instance and returns its result. An argument is a text that the
/// library converts, or the name of a member of the parameter's enumeration. Raises what the
/// operation raises; `WrongUse` if the words are not a call.
ZQ7Standard::Automation::Value CallByWords(const CallWords& words,
                                           const ZQ7Standard::Services& services);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_CALL_H_
