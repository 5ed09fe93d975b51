// The scanner's rows are the whole input in its order, and what libcsv finds in those that both read
// alike; a file cut into pieces has the same rows. A cell that is written is read back.

#include <csv.h>

#include <sstream>
#include <string>
#include <vector>

#include "fill/chunk_reader.h"
#include "fill/csv_cells.h"
#include "fill/csv_scanner.h"
#include "tests/fuzz/check.h"

using namespace ZQ7Tool;
using ZQ7Standard::Check;

namespace {

using Row = std::vector<std::string>;

Row Contents(const CsvScanner& scanner) {
  Row row;
  std::string buffer;
  for (const auto cell : scanner.Cells()) row.emplace_back(CellContent(cell, buffer));
  return row;
}

/// The cells of a row by libcsv, which reads no row from a blank line.
Row ByLibrary(std::string_view line, char delimiter) {
  Row row;
  csv_parser parser;
  csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI | CSV_APPEND_NULL);
  csv_set_delim(&parser, static_cast<unsigned char>(delimiter));
  csv_set_space_func(&parser, [](unsigned char) { return 0; });
  csv_set_term_func(&parser, [](unsigned char byte) { return byte == '\n' ? 1 : 0; });
  const auto add = [](void* bytes, std::size_t size, void* cells) {
    static_cast<Row*>(cells)->emplace_back(static_cast<const char*>(bytes), size);
  };
  Check(csv_parse(&parser, line.data(), line.size(), add, nullptr, &row) == line.size());
  Check(csv_fini(&parser, add, nullptr, &row) == 0);
  csv_free(&parser);
  return row;
}

/// Whether a quote stands inside an unquoted cell, which libcsv refuses.
bool HasBareQuote(const CsvScanner& scanner) {
  for (const auto cell : scanner.Cells()) {
    if (!IsQuoted(cell) && cell.find('"') != std::string_view::npos) return true;
  }
  return false;
}

void CheckCells(const CsvScanner& scanner, std::string_view content, char delimiter) {
  std::string joined;
  for (const auto cell : scanner.Cells()) {
    if (cell.data() != scanner.Cells().front().data()) joined += delimiter;
    joined += cell;
  }
  Check(joined == content);
  const Row row = Contents(scanner);
  if (!content.empty() && !HasBareQuote(scanner)) Check(row == ByLibrary(content, delimiter));
  std::string written;
  for (const std::string& cell : row) {
    if (&cell != row.data()) written += delimiter;
    AppendCell(written, cell, delimiter);
  }
  CsvScanner again(delimiter);
  if (written.empty()) return;
  Check(again.Next(written, true)->mistake == CsvMistake::kNone && Contents(again) == row);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const char delimiter = ",;\t|"[data[0] % 4];
  const std::string bytes(data + 1, data + size);
  CsvScanner scanner(delimiter);
  for (std::size_t at = 0; at < bytes.size();) {
    const std::string_view rest = std::string_view(bytes).substr(at);
    const CsvRow row = *scanner.Next(rest, true);
    Check(row.size > 0 && row.content <= row.size && row.size <= rest.size());
    Check(row.size == rest.size() || rest[row.size - 1] == '\n');
    if (row.mistake == CsvMistake::kNone) {
      CheckCells(scanner, rest.substr(0, row.content), delimiter);
      // Fewer bytes are not enough for another answer, and more do not change it.
      const auto cut = scanner.Next(rest.substr(0, row.size - 1), false);
      Check(!cut);
      const auto exact = scanner.Next(rest.substr(0, row.size), true);
      Check(exact->size == row.size && exact->mistake == row.mistake);
    }
    at += row.size;
  }
  std::stringbuf source(bytes);
  ChunkReader reader(source);
  std::string read;
  for (Chunk chunk; reader.Next(chunk);) read += chunk.bytes;
  Check(read == bytes);
  return 0;
}
