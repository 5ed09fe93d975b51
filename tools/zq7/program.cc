#include "program.h"

#include <algorithm>

#include "command_line.h"
#include "terminal.h"

namespace ZQ7Tool {

int RunProgram(const std::vector<std::string>& words, std::istream& in, std::ostream& out,
               std::ostream& err) {
  constexpr std::size_t kDefaultColumns = 80;
  constexpr std::size_t kFewestColumns = 40;
  const std::size_t columns = TerminalColumns().value_or(kDefaultColumns);
  return Run(words, {in, out, err, std::max(columns, kFewestColumns), IsErrorOnTerminal()});
}

}  // namespace ZQ7Tool
