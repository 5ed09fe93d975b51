#ifndef ZQ7STANDARD_SRC_AUTOMATION_DOCUMENTATION_H_
#define ZQ7STANDARD_SRC_AUTOMATION_DOCUMENTATION_H_

#include <string_view>

/// The comments of the public headers; cmake/make_documentation.py reads them.
namespace ZQ7Standard::Automation {

struct Documentation {
  std::string_view subject;  ///< the banner above it; may be empty
  std::string_view help;     ///< the first paragraph, one line
  std::string_view details;  ///< the other paragraphs, separated by blank lines
};

/// The documentation of a class, "StandardObject", or of a member, "StandardObject.CTDATE"; empty
/// if there is none.
Documentation DocumentationOf(std::string_view qualified_name);

/// The sentences of a member's documentation that name its parameter.
std::string_view ParameterHelp(std::string_view qualified_name, std::string_view parameter);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_DOCUMENTATION_H_
