#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_HEADER_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_HEADER_H_

#include <string>
#include <string_view>
#include <vector>

#include "fill/chunk_reader.h"
#include "fill/plan.h"
#include "fill/row_filler.h"

namespace ZQ7Tool {

/// What precedes the rows of a file.
struct Header {
  std::string before = {};  ///< a byte-order mark and blank lines
  std::string row = {};     ///< without its line end
  std::string line_end = {};
  std::vector<std::string> names = {};  ///< of the columns, in UTF-8
};

/// The byte-order mark that `bytes` begins with; empty if there is none.
std::string_view ByteOrderMark(std::string_view bytes, Encoding encoding);

/// Takes the first row that is not blank off the first chunk of a file, with what precedes it.
/// Throws `WrongUse` if there is no such row or it is wrong.
void TakeHeader(Chunk& chunk, const CellRules& rules, Header& header);

/// The bytes of the header with the names of the new columns. Throws `WrongUse` if the encoding
/// lacks a character of one.
std::string HeaderLine(const Header& header, const Plan& plan, const CellRules& rules);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_HEADER_H_
