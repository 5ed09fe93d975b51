#ifndef ZQ7STANDARD_SRC_AUTOMATION_DOCSTRINGS_H_
#define ZQ7STANDARD_SRC_AUTOMATION_DOCSTRINGS_H_

#include <string_view>

namespace ZQ7Standard::Automation {

/// The comment of a public header on a class, "StandardObject", or a member of one,
/// "StandardObject.CTDATE"; empty where there is none.
std::string_view Docstring(std::string_view qualified_name);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_DOCSTRINGS_H_
