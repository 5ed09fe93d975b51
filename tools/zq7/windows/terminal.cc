#include "terminal.h"

#include "windows/console.h"

namespace ZQ7Tool {

std::optional<std::size_t> TerminalColumns() {
  CONSOLE_SCREEN_BUFFER_INFO screen{};
  if (GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &screen) == 0) {
    return std::nullopt;
  }
  return static_cast<std::size_t>(screen.srWindow.Right - screen.srWindow.Left + 1);
}

bool IsErrorOnTerminal() {
  return IsConsole(GetStdHandle(STD_ERROR_HANDLE));
}

}  // namespace ZQ7Tool
