#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_CSV_CELLS_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_CSV_CELLS_H_

#include <cstddef>
#include <string>
#include <string_view>

/// The bytes of cells and rows, as RFC 4180 has them.
namespace ZQ7Tool {

/// Whether a cell is in quotes.
constexpr bool IsQuoted(std::string_view cell) {
  return cell.starts_with('"');
}

/// The content of a cell. Undoubles its quotes in `buffer`, which the result may refer to.
std::string_view CellContent(std::string_view cell, std::string& buffer);

/// Appends a cell with that content, in quotes only if necessary.
void AppendCell(std::string& row, std::string_view content, char delimiter);

/// The character of comma, semicolon, tab and "|" that the first row which is not blank has most
/// often outside quotes; a comma if it has none.
char DelimiterOf(std::string_view bytes);

/// How many lines end in `bytes`.
std::size_t LineEnds(std::string_view bytes);

/// Whether a row consists of blanks and tabs that do not separate cells.
bool IsBlankRow(std::string_view content, char delimiter);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_CSV_CELLS_H_
