#ifndef ZQ7STANDARD_TOOLS_ZQ7_LAYOUT_H_
#define ZQ7STANDARD_TOOLS_ZQ7_LAYOUT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Text for terminals, as complete lines of UTF-8.
namespace ZQ7Tool {

/// Fills lines of `width` columns with `prefix` and then `words`, separated by blanks; all lines
/// but the first are indented. Thai marks above or below a letter occupy no column.
std::string Filled(std::string_view prefix, const std::vector<std::string>& words,
                   std::size_t indent, std::size_t width);

/// The same with the words of `text`.
std::string Wrapped(std::string_view prefix, std::string_view text, std::size_t indent,
                    std::size_t width);

/// The paragraphs of a documentation, which blank lines separate.
std::vector<std::string> SplitParagraphs(std::string_view documentation);

/// The paragraphs of a documentation, separated by blank lines, each refilled; one that begins with
/// two blanks is kept as it is.
std::string Paragraphs(std::string_view documentation, std::size_t width);

struct Row {
  std::string name;
  std::string text;
};

/// Names and, in a second column, their texts.
std::string Columns(const std::vector<Row>& rows, std::size_t indent, std::size_t width);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_LAYOUT_H_
