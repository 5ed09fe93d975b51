#ifndef ZQ7STANDARD_TOOLS_ZQ7_COMMAND_LINE_H_
#define ZQ7STANDARD_TOOLS_ZQ7_COMMAND_LINE_H_

#include <cstddef>
#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace ZQ7Tool {

enum ExitStatus : int {
  kDone = 0,
  kFailed = 1,    ///< a run-time error, also of a row, or the output cannot be written
  kWrongUse = 2,  ///< nothing was called, or the input cannot be read
};

/// The tool's input and outputs, the number of columns for help, and whether `err` is a terminal,
/// which shows progress.
struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  std::size_t width = 80;
  bool err_is_terminal = false;
};

/// Executes the words after the program's name; returns the exit status.
int Run(const std::vector<std::string>& words, const Streams& streams);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_COMMAND_LINE_H_
