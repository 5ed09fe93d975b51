#ifndef ZQ7STANDARD_TOOLS_ZQ7_PROGRAM_H_
#define ZQ7STANDARD_TOOLS_ZQ7_PROGRAM_H_

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace ZQ7Tool {

/// What `main` does on every system: executes the words after the program's name, in UTF-8, with
/// lines as wide as the terminal; returns the exit status.
int RunProgram(const std::vector<std::string>& words, std::istream& in, std::ostream& out,
               std::ostream& err);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_PROGRAM_H_
