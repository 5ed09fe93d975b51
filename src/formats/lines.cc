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

Text WithLineEnds(TextView text) {
  Text lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pair = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
    if (pair) ++i;
    if (text[i] == u'\r' || text[i] == u'\n') {
      lines += u"\r\n";
    } else {
      lines += text[i];
    }
  }
  return lines;
}

}  // namespace ZQ7Standard
