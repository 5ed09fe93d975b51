#include "csv.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>

namespace InvoiceDemo {
namespace {

using ZQ7Standard::Text;
using ZQ7Standard::TextView;

// The carriage return of a line end goes with the blanks around the last field.
constexpr TextView kBlanks = u" \t\r";

/// Quotes that do not pair up.
struct QuoteError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

bool TakeIf(TextView& rest, char16_t expected) {
  if (!rest.starts_with(expected)) return false;
  rest.remove_prefix(1);
  return true;
}

void SkipBlanks(TextView& rest) {
  rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
}

TextView TakeUntil(TextView& rest, TextView ends) {
  const TextView taken = rest.substr(0, rest.find_first_of(ends));
  rest.remove_prefix(taken.size());
  return taken;
}

Text Trimmed(TextView text) {
  SkipBlanks(text);
  return Text(text.substr(0, text.find_last_not_of(kBlanks) + 1));
}

/// Takes a field in quotes, whose first quote is taken already.
Text TakeQuoted(TextView& rest) {
  Text field;
  for (;;) {
    field += TakeUntil(rest, u"\"");
    if (!TakeIf(rest, u'"')) throw QuoteError("a quoted field has no closing quote");
    if (!TakeIf(rest, u'"')) break;
    field += u'"';
  }
  SkipBlanks(rest);
  if (!rest.empty() && !rest.starts_with(u',') && !rest.starts_with(u'\n')) {
    throw QuoteError("text follows the closing quote of a field");
  }
  return field;
}

Text TakeField(TextView& rest) {
  SkipBlanks(rest);
  if (TakeIf(rest, u'"')) return Trimmed(TakeQuoted(rest));
  return Trimmed(TakeUntil(rest, u",\n"));
}

/// Takes the fields of a row and the end of its line.
void TakeFields(TextView& rest, std::vector<Text>& fields) {
  do {
    fields.push_back(TakeField(rest));
  } while (TakeIf(rest, u','));
  TakeIf(rest, u'\n');
}

CsvRow TakeRow(TextView& rest) {
  TextView next_line = rest;
  CsvRow row;
  try {
    TakeFields(rest, row.fields);
  } catch (const QuoteError& error) {
    row.mistake = error.what();
    TakeUntil(next_line, u"\n");
    TakeIf(next_line, u'\n');
    rest = next_line;
  }
  return row;
}

bool HasText(const CsvRow& row) {
  const auto is_empty = [](const Text& field) { return field.empty(); };
  return !row.mistake.empty() || !std::ranges::all_of(row.fields, is_empty);
}

}  // namespace

std::vector<CsvRow> ReadCsv(TextView text) {
  TakeIf(text, u'\uFEFF');
  std::vector<CsvRow> rows;
  int line = 1;
  while (!text.empty()) {
    const TextView before = text;
    CsvRow row = TakeRow(text);
    row.line = line;
    line +=
        static_cast<int>(std::ranges::count(before.substr(0, before.size() - text.size()), u'\n'));
    if (HasText(row)) rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace InvoiceDemo
