#include "terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace ZQ7Tool {

std::optional<std::size_t> TerminalColumns() {
  winsize size = {};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return std::nullopt;
  return size.ws_col;
}

bool IsErrorOnTerminal() {
  return isatty(STDERR_FILENO) == 1;
}

}  // namespace ZQ7Tool
