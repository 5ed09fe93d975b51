#ifndef ZQ7STANDARD_TOOLS_ZQ7_CALL_WORDS_H_
#define ZQ7STANDARD_TOOLS_ZQ7_CALL_WORDS_H_

#include <string>
#include <string_view>
#include <vector>

/// The words of a command line as a shell passes them, and which of them are arguments of a call.
namespace ZQ7Tool {

/// After it every word is a positional argument.
inline constexpr std::string_view kEndOfOptions = "--";

/// Whether a word is an option of the tool. "-1" and "-abc" are not, so that negative numbers are
/// arguments.
bool IsOption(std::string_view word);

/// The "NAME" of "NAME=ARG", made of letters, digits and "_"; empty for a positional argument.
std::string_view ArgumentName(std::string_view word);

/// The word as a shell reads it back, in quotation marks if necessary.
std::string ShellWord(std::string_view word);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_CALL_WORDS_H_
