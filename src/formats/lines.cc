#include "formats/lines.h"

#include <algorithm>

namespace ZQ7Standard {

std::string_view TakeLine(std::string_view& rest) {
  const auto ends_line = [](char c) { return c == '\r' || c == '\n'; };
  const auto end = std::ranges::find_if(rest, ends_line);
  const std::string_view line(rest.begin(), end);
  rest.remove_prefix(line.size());
  if (rest.starts_with(kLineEnd)) {
    rest.remove_prefix(kLineEnd.size());
  } else if (!rest.empty()) {
    rest.remove_prefix(1);
  }
  return line;
}

std::optional<std::string_view> LineAfter(std::string_view text, std::string_view beginning) {
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    if (line.starts_with(beginning)) return line.substr(beginning.size());
  }
  return std::nullopt;
}

}  // namespace ZQ7Standard
