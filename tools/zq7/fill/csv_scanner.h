#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_CSV_SCANNER_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_CSV_SCANNER_H_

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace ZQ7Tool {

/// The largest row, with its line end.
inline constexpr std::size_t kMaxRow = std::size_t{1} << 20;

enum class CsvMistake {
  kNone,
  kTextAfterQuote,  ///< "x"y
  kOpenQuote,       ///< a quote opens in the line that is not closed, or not within `kMaxRow`
  kTooLong,         ///< a line of more than `kMaxRow`
};

/// A row that a scanner found. One with a mistake is its first line alone, so that a forgotten
/// quote costs no other row.
struct CsvRow {
  std::size_t size = 0;     ///< in bytes, with the line end
  std::size_t content = 0;  ///< in bytes, without the line end
  CsvMistake mistake = CsvMistake::kNone;
};

/// Finds rows and cells as ranges of bytes and changes none. LF and CR LF end a row. A quote opens
/// a quoted cell only as its first byte; elsewhere it is a byte like any other.
class CsvScanner {
 public:
  explicit CsvScanner(char delimiter) : delimiter_(delimiter) {}

  /// The row that `bytes` begins with; nullopt if its end is not among them and, as `last` is
  /// false, more may follow. `bytes` is not empty.
  std::optional<CsvRow> Next(std::string_view bytes, bool last);

  /// The cells of that row with their quotes, unless it has a mistake.
  const std::vector<std::string_view>& Cells() const { return cells_; }

 private:
  char delimiter_;
  std::vector<std::string_view> cells_;
};

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_CSV_SCANNER_H_
