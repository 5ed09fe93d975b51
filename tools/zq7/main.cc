// The command-line tool of the library: its classes by name.

#include <algorithm>
#include <iostream>

#include "command_line.h"
#include "terminal.h"

int main(int argc, char** argv) {
  constexpr std::size_t kDefaultColumns = 80;
  constexpr std::size_t kFewestColumns = 40;
  // Without buffers shared with C, input is read in blocks, and a failed read is told
  // from the end.
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  const std::size_t columns = ZQ7Tool::TerminalColumns().value_or(kDefaultColumns);
  return ZQ7Tool::Run({argv + 1, argv + argc},
                      {std::cin, std::cout, std::cerr, std::max(columns, kFewestColumns)});
}
