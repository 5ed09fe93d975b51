#include "fill/header.h"

#include "fill/chunk_filler.h"
#include "fill/csv_cells.h"
#include "names.h"
#include "wrong_use.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;

std::string NameIn(std::string_view cell, Encoding encoding) {
  std::string buffer;
  const auto name = Decoded(CellContent(cell, buffer), encoding);
  if (name) return Utf8(*name);
  throw WrongUse("The header is not UTF-8. --encoding windows-874 reads that code page.");
}

}  // namespace

std::string_view ByteOrderMark(std::string_view bytes, Encoding encoding) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  return encoding == Encoding::kUtf8 && bytes.starts_with(kMark) ? kMark : std::string_view();
}

void TakeHeader(Chunk& chunk, const CellRules& rules, Header& header) {
  if (chunk.kind != Chunk::Kind::kRows) {
    throw WrongUse("The header is wrong: " + MistakeText(CsvMistake::kTooLong) + ".");
  }
  CsvScanner scanner(rules.delimiter);
  std::size_t at = 0;
  while (at < chunk.bytes.size() && header.names.empty()) {
    const std::string_view rest = std::string_view(chunk.bytes).substr(at);
    const CsvRow row = *scanner.Next(rest, true);
    if (row.mistake != CsvMistake::kNone) {
      throw WrongUse("The header is wrong: " + MistakeText(row.mistake) + ".");
    }
    at += row.size;
    header.row = rest.substr(0, row.content);
    header.line_end = rest.substr(row.content, row.size - row.content);
    if (IsBlankRow(header.row, rules.delimiter)) {
      header.before += header.row + header.line_end;
    } else {
      for (const auto cell : scanner.Cells()) header.names.push_back(NameIn(cell, rules.encoding));
    }
  }
  if (header.names.empty()) throw WrongUse("The file has no header.");
  chunk.first_line += LineEnds(std::string_view(chunk.bytes).substr(0, at));
  chunk.bytes.erase(0, at);
}

std::string HeaderLine(const Header& header, const Plan& plan, const CellRules& rules) {
  std::string line = header.before + header.row;
  std::string name;
  for (const PlannedColumn& column : plan.columns) {
    if (!Encode(FromUtf8(column.name), rules.encoding, name)) {
      throw WrongUse("The encoding of the file lacks a character of the name " +
                     Quoted(column.name) + ".");
    }
    line += rules.delimiter;
    AppendCell(line, name, rules.delimiter);
  }
  return line + header.line_end;
}

}  // namespace ZQ7Tool
