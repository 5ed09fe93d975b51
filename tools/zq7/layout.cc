#include "layout.h"

#include <ZQ7Standard/Types.h>

#include <algorithm>
#include <sstream>

namespace ZQ7Tool {
namespace {

constexpr std::size_t kWidestName = 32;

std::size_t WidthOf(std::string_view text) {
  return static_cast<std::size_t>(ZQ7Standard::TerminalWidth(ZQ7Standard::FromUtf8(text)));
}

}  // namespace

std::string Filled(std::string_view prefix, const std::vector<std::string>& words,
                   std::size_t indent, std::size_t width) {
  std::string lines(prefix);
  std::size_t column = WidthOf(prefix);
  bool line_begins = prefix.empty() || prefix.ends_with(' ');
  for (const std::string& word : words) {
    const std::size_t needed = WidthOf(word);
    if (!line_begins && column + 1 + needed > width) {
      lines.append("\n").append(indent, ' ');
      column = indent;
      line_begins = true;
    }
    if (!line_begins) lines += ' ';
    column += needed + (line_begins ? 0 : 1);
    lines += word;
    line_begins = false;
  }
  return lines += '\n';
}

std::string Wrapped(std::string_view prefix, std::string_view text, std::size_t indent,
                    std::size_t width) {
  std::istringstream stream{std::string(text)};
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return Filled(prefix, words, indent, width);
}

std::vector<std::string> SplitParagraphs(std::string_view documentation) {
  std::istringstream stream{std::string(documentation)};
  std::vector<std::string> paragraphs(1);
  for (std::string line; std::getline(stream, line);) {
    if (!line.empty()) {
      paragraphs.back() += line + "\n";
    } else if (!paragraphs.back().empty()) {
      paragraphs.emplace_back();
    }
  }
  if (paragraphs.back().empty()) paragraphs.pop_back();
  return paragraphs;
}

std::string Paragraphs(std::string_view documentation, std::size_t width) {
  std::string lines;
  for (const std::string& paragraph : SplitParagraphs(documentation)) {
    lines += lines.empty() ? "" : "\n";
    lines += paragraph.starts_with("  ") ? paragraph : Wrapped("", paragraph, 0, width);
  }
  return lines;
}

std::string Columns(const std::vector<Row>& rows, std::size_t indent, std::size_t width) {
  std::size_t widest = 0;
  for (const Row& row : rows) {
    if (row.name.size() <= kWidestName) widest = std::max(widest, row.name.size());
  }
  const std::size_t column = indent + widest + 2;
  std::string lines;
  for (const Row& row : rows) {
    std::string prefix(indent, ' ');
    prefix += row.name;
    prefix.append(prefix.size() + 2 <= column ? column - prefix.size() : 2, ' ');
    lines += Wrapped(row.text.empty() ? prefix.substr(0, indent + row.name.size()) : prefix,
                     row.text, column, width);
  }
  return lines;
}

}  // namespace ZQ7Tool
