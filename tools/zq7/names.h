#ifndef ZQ7STANDARD_TOOLS_ZQ7_NAMES_H_
#define ZQ7STANDARD_TOOLS_ZQ7_NAMES_H_

#include <string>
#include <string_view>
#include <vector>

/// Names as the command line takes them: ASCII, without regard to case.
namespace ZQ7Tool {

constexpr char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// `text` between quotation marks, for a message.
std::string Quoted(std::string_view text);

/// Whether `word` is letters, digits and "_" and begins with no digit.
bool IsIdentifier(std::string_view word);

/// " Did you mean X?" for the candidate nearest to a misspelt name, the case of letters
/// aside; empty when none is near.
std::string Hint(std::string_view misspelt, const std::vector<std::string>& candidates);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_NAMES_H_
