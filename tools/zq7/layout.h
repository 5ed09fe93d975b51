#ifndef ZQ7STANDARD_TOOLS_ZQ7_LAYOUT_H_
#define ZQ7STANDARD_TOOLS_ZQ7_LAYOUT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Lines of UTF-8 for a terminal, each ended.
namespace ZQ7Tool {

/// `prefix` and then `words` with a blank between, as many as fit on each line of
/// `width` columns; the lines below the first are indented. Thai marks that stand above
/// or below a letter take no column.
std::string Filled(std::string_view prefix, const std::vector<std::string>& words,
                   std::size_t indent, std::size_t width);

/// The same with the words of `text`.
std::string Wrapped(std::string_view prefix, std::string_view text, std::size_t indent,
                    std::size_t width);

/// The paragraphs of a documentation, parted by blank lines, each filled anew; one that
/// begins with two blanks stays as it is.
std::string Paragraphs(std::string_view documentation, std::size_t width);

struct Row {
  std::string name;
  std::string text;
};

/// Names and, beside them in a column of their own, what is said of them.
std::string Columns(const std::vector<Row>& rows, std::size_t indent, std::size_t width);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_LAYOUT_H_
