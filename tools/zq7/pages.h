#ifndef ZQ7STANDARD_TOOLS_ZQ7_PAGES_H_
#define ZQ7STANDARD_TOOLS_ZQ7_PAGES_H_

#include <map>
#include <string>

/// The pages installed with the tool, zq7.1 and zq7.bash: zq7.1.in and zq7.bash.in with each
/// "@NAME@" filled from the catalogue and the command line by scripts/pages.
namespace ZQ7Tool {

/// The lines for each "@NAME@".
using Fields = std::map<std::string, std::string>;

/// Of the manual page zq7(1).
Fields ManPageFields();

/// Of the completion for bash.
Fields CompletionFields();

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_PAGES_H_
