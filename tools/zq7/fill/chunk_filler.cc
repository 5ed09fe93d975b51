#include "fill/chunk_filler.h"

#include <utility>

#include "fill/csv_cells.h"

namespace ZQ7Tool {
namespace {

/// Counts the lines up to places that only grow.
class LineCounter {
 public:
  explicit LineCounter(const Chunk& chunk) : bytes_(chunk.bytes), line_(chunk.first_line) {}

  std::size_t At(std::size_t place) {
    line_ += LineEnds(bytes_.substr(counted_, place - counted_));
    counted_ = place;
    return line_;
  }

 private:
  std::string_view bytes_;
  std::size_t line_;
  std::size_t counted_ = 0;
};

/// The bytes without the line end.
std::string_view WithoutLineEnd(std::string_view line) {
  if (line.ends_with('\n')) line.remove_suffix(1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

std::string MistakeText(CsvMistake mistake) {
  switch (mistake) {
    case CsvMistake::kTextAfterQuote:
      return "text follows the closing quote of a cell";
    case CsvMistake::kOpenQuote:
      return "a quote that opens in this line is not closed";
    case CsvMistake::kTooLong:
      return "a row of more than 1 MiB";
    case CsvMistake::kNone:
      break;
  }
  return {};
}

ChunkFiller::ChunkFiller(const Plan& plan, const CellRules& rules, bool stop,
                         const ZQ7Standard::Services& services)
    : scanner_(rules.delimiter),
      filler_(plan, rules, services),
      columns_(plan.header.size()),
      empty_cells_(plan.columns.size(), rules.delimiter),
      delimiter_(rules.delimiter),
      stop_(stop) {}

void ChunkFiller::Fill(const Chunk& chunk, FilledChunk& filled) {
  filled.bytes.clear();
  filled.rows = 0;
  filled.failed.clear();
  if (chunk.kind == Chunk::Kind::kRows) return FillRows(chunk, filled);
  filled.bytes = chunk.bytes;
  if (chunk.kind == Chunk::Kind::kPart) return;
  filled.rows = 1;
  filled.failed.push_back({chunk.first_line, {{}, MistakeText(CsvMistake::kTooLong)}});
  filled.bytes.insert(WithoutLineEnd(chunk.bytes).size(), empty_cells_);
}

void ChunkFiller::FillRows(const Chunk& chunk, FilledChunk& filled) {
  const std::string_view bytes = chunk.bytes;
  LineCounter lines(chunk);
  std::size_t size = 0;
  for (std::size_t at = 0; at < bytes.size(); at += size) {
    const CsvRow row = *scanner_.Next(bytes.substr(at), true);
    size = row.size;
    const std::string_view content = bytes.substr(at, row.content);
    filled.bytes += content;
    if (!IsBlankRow(content, delimiter_)) {
      ++filled.rows;
      if (auto failure = FillRow(row, filled.bytes)) {
        filled.failed.push_back({lines.At(at), *std::move(failure)});
        if (stop_) return filled.bytes.resize(filled.bytes.size() - content.size());
        filled.bytes += empty_cells_;
      }
    }
    filled.bytes += bytes.substr(at + row.content, row.size - row.content);
  }
}

/// Appends the new cells of a row, or nothing if it fails.
std::optional<RowFailure> ChunkFiller::FillRow(const CsvRow& row, std::string& out) {
  if (row.mistake != CsvMistake::kNone) return RowFailure{{}, MistakeText(row.mistake)};
  const auto& cells = scanner_.Cells();
  if (cells.size() == columns_) return filler_.Fill(cells, out);
  return RowFailure{{},
                    std::to_string(cells.size()) + (cells.size() == 1 ? " cell" : " cells") +
                        " instead of the " + std::to_string(columns_) + " of the header"};
}

}  // namespace ZQ7Tool
