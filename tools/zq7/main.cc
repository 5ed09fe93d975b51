// The command-line tool: calls the library's classes by name.

#include <algorithm>
#include <iostream>

#include "command_line.h"
#include "terminal.h"

int main(int argc, char** argv) {
  constexpr std::size_t kDefaultColumns = 80;
  constexpr std::size_t kFewestColumns = 40;
  // Without sharing buffers with C, input is read in blocks, and read errors are distinguished from
  // the end.
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  const std::size_t columns = ZQ7Tool::TerminalColumns().value_or(kDefaultColumns);
  return ZQ7Tool::Run({argv + 1, argv + argc},
                      {std::cin, std::cout, std::cerr, std::max(columns, kFewestColumns),
                       ZQ7Tool::IsErrorOnTerminal()});
}
