#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_CHUNK_FILLER_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_CHUNK_FILLER_H_

#include <cstddef>
#include <string>
#include <vector>

#include "fill/chunk_reader.h"
#include "fill/row_filler.h"

namespace ZQ7Tool {

/// A row that failed.
struct FailedRow {
  std::size_t line;  ///< where it begins
  RowFailure failure;
};

/// A chunk with the new cells.
struct FilledChunk {
  std::string bytes = {};
  std::size_t rows = 0;
  std::vector<FailedRow> failed = {};
};

/// Fills the rows of chunks. A row that fails is kept, with empty new cells; blank rows get none.
class ChunkFiller {
 public:
  /// With `stop`, a chunk ends before its first row that fails.
  ChunkFiller(const Plan& plan, const CellRules& rules, bool stop,
              const ZQ7Standard::Services& services);

  void Fill(const Chunk& chunk, FilledChunk& filled);

 private:
  void FillRows(const Chunk& chunk, FilledChunk& filled);
  std::optional<RowFailure> FillRow(const CsvRow& row, std::string& out);

  CsvScanner scanner_;
  RowFiller filler_;
  std::size_t columns_;
  std::string empty_cells_;
  char delimiter_;
  bool stop_;
};

/// What a mistake is to the user.
std::string MistakeText(CsvMistake mistake);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_CHUNK_FILLER_H_
