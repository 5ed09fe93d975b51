#ifndef ZQ7STANDARD_TOOLS_ZQ7_CALL_WORDS_H_
#define ZQ7STANDARD_TOOLS_ZQ7_CALL_WORDS_H_

#include <string>
#include <string_view>
#include <vector>

/// The words of a command line as a shell gives them, and which of them are the
/// arguments of a call.
namespace ZQ7Tool {

/// Behind it every word is an argument by its position.
inline constexpr std::string_view kEndOfOptions = "--";

/// Whether a word is an option of the tool. "-1" and "-abc" are none, so that negative
/// numbers are arguments.
bool IsOption(std::string_view word);

/// The "NAME" of "NAME=ARG", which is letters, digits and "_"; empty for a word that is
/// an argument by its position.
std::string_view ArgumentName(std::string_view word);

/// The word as a shell takes it back: in quotation marks where it needs them.
std::string ShellWord(std::string_view word);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_CALL_WORDS_H_
