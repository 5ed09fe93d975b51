#ifndef ZQ7STANDARD_TOOLS_ZQ7_TERMINAL_H_
#define ZQ7STANDARD_TOOLS_ZQ7_TERMINAL_H_

#include <cstddef>
#include <optional>

namespace ZQ7Tool {

/// The columns of the terminal on standard output; nullopt if that is not a terminal.
std::optional<std::size_t> TerminalColumns();

/// Whether standard error is a terminal.
bool IsErrorOnTerminal();

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_TERMINAL_H_
