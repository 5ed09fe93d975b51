#ifndef ZQ7STANDARD_SRC_AUTOMATION_DOCUMENTATION_H_
#define ZQ7STANDARD_SRC_AUTOMATION_DOCUMENTATION_H_

#include <string_view>

/// What the comments of the public headers say; cmake/make_documentation.py reads them.
namespace ZQ7Standard::Automation {

struct Documentation {
  std::string_view subject;  ///< the banner that it stands below; may be empty
  std::string_view help;     ///< the first paragraph, one line
  std::string_view details;  ///< the other paragraphs, parted by blank lines
};

/// What is said of a class, "StandardObject", or a member of one, "StandardObject.CTDATE";
/// empty where there is no comment.
Documentation DocumentationOf(std::string_view qualified_name);

/// The sentences about a member that name its parameter.
std::string_view ParameterHelp(std::string_view qualified_name, std::string_view parameter);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_DOCUMENTATION_H_
