#include "fill/csv_cells.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace ZQ7Tool {
namespace {

constexpr std::size_t kNotFound = std::string_view::npos;

}  // namespace

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
