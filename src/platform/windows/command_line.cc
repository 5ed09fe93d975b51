#include "platform/windows/command_line.h"

#include <string_view>

#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

/// Before a quotation mark, programs take two backslashes for one, and an odd one as its escape.
/// What needs no quotation marks gets none: some programs read the line in their own way.
std::wstring Quoted(std::wstring_view argument) {
  if (!argument.empty() && argument.find_first_of(L" \t\n\v\"") == std::wstring_view::npos) {
    return std::wstring(argument);
  }
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : argument) {
    if (c == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  quoted.append(backslashes, L'\\');
  return quoted += L'"';
}

}  // namespace

std::wstring CommandLine(const std::wstring& program, const std::vector<Text>& arguments) {
  std::wstring line = L'"' + program + L'"';  // no path holds a quotation mark
  for (const Text& argument : arguments) {
    line += L' ' + Quoted(Wide(TextView(argument).substr(0, argument.find(u'\0'))));
  }
  return line;
}

}  // namespace ZQ7Standard
