#include "fill/csv_scanner.h"

#include <algorithm>
#include <array>
#include <cstdint>

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

}  // namespace

/// The row from the beginning to the line end at that place, or to the end of the bytes.
CsvRow CsvScanner::ToLineEnd(std::string_view bytes, std::size_t line_end) const {
  if (line_end == kNotFound) return {bytes.size(), bytes.size()};
  const bool carriage_return = line_end > 0 && bytes[line_end - 1] == '\r';
  return {line_end + 1, line_end - (carriage_return ? 1 : 0)};
}

CsvRow CsvScanner::Wrong(std::string_view bytes, CsvMistake mistake) const {
  CsvRow row = ToLineEnd(bytes, bytes.find('\n'));
  row.mistake = row.size > kMaxRow ? CsvMistake::kTooLong : mistake;
  return row;
}

std::optional<CsvRow> CsvScanner::Next(std::string_view bytes, bool last) {
  const std::string_view window = bytes.substr(0, kMaxRow);
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

std::string_view CellContent(std::string_view cell, std::string& buffer) {
  if (!IsQuoted(cell)) return cell;
  const std::string_view inside = cell.substr(1, cell.size() - 2);
  if (inside.find('"') == kNotFound) return inside;
  buffer.clear();
  for (std::size_t i = 0; i < inside.size(); ++i) {
    buffer += inside[i];
    if (inside[i] == '"') ++i;
  }
  return buffer;
}

void AppendCell(std::string& row, std::string_view content, char delimiter) {
  const auto has = [content](char c) { return content.find(c) != kNotFound; };
  const bool needs_quotes = has(delimiter) || has('"') || has('\n') || has('\r');
  if (!needs_quotes) {
    row += content;
    return;
  }
  row += '"';
  for (const char c : content) row.append(c == '"' ? 2 : 1, c);
  row += '"';
}

char DelimiterOf(std::string_view bytes) {
  constexpr std::string_view kDelimiters = ",;\t|";
  std::array<std::size_t, kDelimiters.size()> counts = {};
  bool in_quotes = false;
  bool blank = true;
  for (const char c : bytes) {
    if (c == '\n' && !in_quotes && !blank) break;
    if (c == '"') in_quotes = !in_quotes;
    if (c != ' ' && c != '\r' && c != '\n') blank = false;
    const std::size_t place = kDelimiters.find(c);
    if (place != kNotFound && !in_quotes) ++counts[place];
  }
  return kDelimiters[static_cast<std::size_t>(std::ranges::max_element(counts) - counts.begin())];
}

std::size_t LineEnds(std::string_view bytes) {
  // Counts that fit a byte let the compiler take many bytes at once.
  constexpr std::size_t kBlock = 255;
  std::size_t count = 0;
  for (; !bytes.empty(); bytes.remove_prefix(std::min(kBlock, bytes.size()))) {
    std::uint8_t in_block = 0;
    for (const char c : bytes.substr(0, kBlock)) {
      in_block = static_cast<std::uint8_t>(in_block + (c == '\n' ? 1 : 0));
    }
    count += in_block;
  }
  return count;
}

bool IsBlankRow(std::string_view content, char delimiter) {
  return std::ranges::all_of(
      content, [delimiter](char c) { return c == ' ' || (c == '\t' && c != delimiter); });
}

}  // namespace ZQ7Tool
