#include "fill/csv_scanner.h"

#include <algorithm>

namespace ZQ7Tool {
namespace {

constexpr std::size_t kNotFound = std::string_view::npos;

/// The place after the quote that closes the one at `open`; npos if none does.
std::size_t AfterQuotes(std::string_view bytes, std::size_t open) {
  for (std::size_t at = open + 1;; at += 2) {
    at = bytes.find('"', at);
    if (at == kNotFound) return kNotFound;
    if (at + 1 == bytes.size() || bytes[at + 1] != '"') return at + 1;
  }
}

/// The row from the beginning to the line end at that place, or to the end of the bytes.
CsvRow ToLineEnd(std::string_view bytes, std::size_t line_end) {
  if (line_end == kNotFound) return {bytes.size(), bytes.size()};
  const bool carriage_return = line_end > 0 && bytes[line_end - 1] == '\r';
  return {line_end + 1, line_end - (carriage_return ? 1 : 0)};
}

/// The first line as a row with a mistake.
CsvRow Wrong(std::string_view bytes, CsvMistake mistake) {
  CsvRow row = ToLineEnd(bytes, bytes.find('\n'));
  row.mistake = row.size > kMaxRow ? CsvMistake::kTooLong : mistake;
  return row;
}

}  // namespace

std::optional<CsvRow> CsvScanner::Next(std::string_view bytes, bool last) {
  const std::string_view window = bytes.substr(0, kMaxRow);  // what a row may have
  const bool may_grow = !last && window.size() == bytes.size() && bytes.size() < kMaxRow;
  const bool cut = window.size() < bytes.size() || (!last && bytes.size() == kMaxRow);
  cells_.clear();
  const std::size_t first_line = window.find('\n');
  std::size_t line_end = first_line;
  std::size_t at = 0;
  for (;;) {
    const bool quoted = at < window.size() && window[at] == '"';
    std::size_t end = quoted ? AfterQuotes(window, at) : at;
    if (quoted && line_end < end) line_end = end == kNotFound ? end : window.find('\n', end);
    if (line_end == kNotFound && may_grow) return std::nullopt;
    const bool open = end == kNotFound;
    if (open || (line_end == kNotFound && cut)) return Wrong(bytes, CsvMistake::kOpenQuote);
    const CsvRow row = ToLineEnd(window, line_end);
    if (!quoted) end = std::min(window.substr(0, row.content).find(delimiter_, at), row.content);
    cells_.push_back(window.substr(at, end - at));
    if (end == row.content) return row;
    if (window[end] != delimiter_) {
      const bool later = first_line < end;
      return Wrong(bytes, later ? CsvMistake::kOpenQuote : CsvMistake::kTextAfterQuote);
    }
    at = end + 1;
  }
}

}  // namespace ZQ7Tool
