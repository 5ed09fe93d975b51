#ifndef ZQ7STANDARD_TOOLS_ZQ7_TERMINAL_H_
#define ZQ7STANDARD_TOOLS_ZQ7_TERMINAL_H_

#include <cstddef>
#include <optional>

namespace ZQ7Tool {

/// The columns of the terminal that standard output is; nothing when it is none.
std::optional<std::size_t> TerminalColumns();

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_TERMINAL_H_
