#include "call_words.h"

#include <algorithm>

#include "names.h"

namespace ZQ7Tool {
namespace {

bool IsPlainInShell(char c) {
  constexpr std::string_view kPlain = "_-./:,+%@=";
  const bool ascii = static_cast<unsigned char>(c) < 0x80;
  const bool digit = c >= '0' && c <= '9';
  const bool letter = Lower(c) >= 'a' && Lower(c) <= 'z';
  return !ascii || digit || letter || kPlain.find(c) != std::string_view::npos;
}

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

/// A word with its control characters, which a terminal would act on, escaped: $'\x1bp0'.
std::string EscapedWord(std::string_view word) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string escaped = "$'";
  for (const char c : word) {
    if (IsControl(c)) {
      const auto code = static_cast<unsigned char>(c);
      escaped.append("\\x").append({kDigits[code / 16U], kDigits[code % 16U]});
    } else {
      if (c == '\'' || c == '\\') escaped += '\\';
      escaped += c;
    }
  }
  return escaped += "'";
}

}  // namespace

bool IsOption(std::string_view word) {
  return word == "-h" || (word.starts_with("--") && word != kEndOfOptions);
}

std::string_view ArgumentName(std::string_view word) {
  const std::string_view name = word.substr(0, word.find('='));
  return name.size() < word.size() && IsIdentifier(name) ? name : std::string_view();
}

std::string ShellWord(std::string_view word) {
  if (!word.empty() && std::ranges::all_of(word, IsPlainInShell)) return std::string(word);
  if (std::ranges::any_of(word, IsControl)) return EscapedWord(word);
  std::string quoted = "'";
  for (const char c : word) {
    if (c == '\'') {
      quoted += "'\\''";
    } else {
      quoted += c;
    }
  }
  return quoted += "'";
}

}  // namespace ZQ7Tool
