#include "csv_rows.h"

#include <csv.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>

namespace InvoiceDemo {
namespace {

using ZQ7Standard::FromUtf8;
using ZQ7Standard::Text;

/// What the parser has found of a row.
struct Progress {
  std::vector<Text> fields;
  bool ended = false;
};

constexpr ZQ7Standard::TextView kBlanks = u" \t\r";  // the last one belongs to the line end

/// The parser leaves the blanks within quotes.
void AddField(void* bytes, std::size_t size, void* progress) {
  const Text field = FromUtf8({static_cast<const char*>(bytes), size});
  const std::size_t begin = std::min(field.find_first_not_of(kBlanks), field.size());
  static_cast<Progress*>(progress)->fields.push_back(
      field.substr(begin, field.find_last_not_of(kBlanks) + 1 - begin));
}

void EndRow(int /*last_byte*/, void* progress) {
  static_cast<Progress*>(progress)->ended = true;
}

std::string_view FirstLine(std::string_view bytes) {
  return bytes.substr(0, std::min(bytes.find('\n'), bytes.size() - 1) + 1);
}

/// Parses line by line to the end of a row, and takes it off `rest`: after a mistake its
/// first line alone.
CsvRow TakeRow(std::string_view& rest) {
  csv_parser parser;
  csv_init(&parser, CSV_STRICT | CSV_STRICT_FINI | CSV_REPALL_NL);
  csv_set_space_func(
      &parser, [](unsigned char byte) { return kBlanks.find(byte) < kBlanks.size() ? 1 : 0; });
  csv_set_term_func(&parser, [](unsigned char byte) { return byte == '\n' ? 1 : 0; });
  const std::unique_ptr<csv_parser, decltype(&csv_free)> freed(&parser, csv_free);
  Progress row;
  std::string mistake;
  std::size_t taken = 0;
  while (mistake.empty() && !row.ended && taken < rest.size()) {
    const std::string_view line = FirstLine(rest.substr(taken));
    taken += line.size();
    if (csv_parse(&parser, line.data(), line.size(), AddField, EndRow, &row) != line.size()) {
      mistake = "a quote is out of place";
    }
  }
  if (mistake.empty() && csv_fini(&parser, AddField, EndRow, &row) != 0) {
    mistake = "a quoted field has no closing quote";
  }
  if (csv_error(&parser) == CSV_ENOMEM) throw std::bad_alloc();
  rest.remove_prefix(mistake.empty() ? taken : FirstLine(rest).size());
  return {.fields = std::move(row.fields), .mistake = mistake};
}

}  // namespace

std::vector<CsvRow> ReadCsv(std::string_view bytes) {
  std::string_view rest = bytes;
  if (rest.starts_with("\xEF\xBB\xBF")) rest.remove_prefix(3);  // a byte-order mark
  std::vector<CsvRow> rows;
  int line = 1;
  while (!rest.empty()) {
    const char* const begin = rest.data();
    CsvRow row = TakeRow(rest);
    row.line = std::exchange(line, line + static_cast<int>(std::count(begin, rest.data(), '\n')));
    const bool is_empty = std::ranges::all_of(row.fields, &Text::empty) && row.mistake.empty();
    if (!is_empty) rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace InvoiceDemo
