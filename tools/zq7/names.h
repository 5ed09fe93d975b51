#ifndef ZQ7STANDARD_TOOLS_ZQ7_NAMES_H_
#define ZQ7STANDARD_TOOLS_ZQ7_NAMES_H_

#include <string>
#include <string_view>
#include <vector>

/// Names as the command line accepts them: ASCII, ignoring case.
namespace ZQ7Tool {

constexpr char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// Whether `c` is a letter, a digit or "_".
constexpr bool IsIdentifierCharacter(char c) {
  return (Lower(c) >= 'a' && Lower(c) <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

/// `text` in quotation marks, for a message.
std::string Quoted(std::string_view text);

/// Whether `word` consists of letters, digits and "_" and does not begin with a digit.
bool IsIdentifier(std::string_view word);

/// " Did you mean X?" for the candidate nearest to a misspelt name, ignoring case; empty if none is
/// close.
std::string Hint(std::string_view misspelt, const std::vector<std::string>& candidates);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_NAMES_H_
