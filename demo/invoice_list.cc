#include "invoice_list.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace InvoiceDemo {
namespace {

using ZQ7Standard::StandardObject;

const std::vector<ZQ7Standard::Text>& FieldsOf(const CsvRow& row) {
  if (!row.mistake.empty()) throw FieldError("row", row.mistake);
  return row.fields;
}

/// Takes the rows of the first invoice.
std::span<const CsvRow> TakeInvoice(std::span<const CsvRow>& rows) {
  const auto next = std::find_if_not(rows.begin() + 1, rows.end(),
                                     [](const CsvRow& row) { return IsFurtherLine(row.fields); });
  const auto taken = rows.first(static_cast<std::size_t>(next - rows.begin()));
  rows = rows.subspan(taken.size());
  return taken;
}

void AddInvoice(const StandardObject& standard, std::span<const CsvRow> rows,
                const InvoiceDefaults& defaults, InvoiceList& list) {
  const CsvRow* row = &rows.front();
  try {
    Invoice invoice = ReadInvoice(standard, FieldsOf(*row), defaults);
    for (const CsvRow& further : rows.subspan(1)) {
      row = &further;
      ReadFurtherLine(standard, FieldsOf(further), invoice);
    }
    list.invoices.push_back(std::move(invoice));
  } catch (const FieldError& error) {
    list.mistakes.push_back("line " + std::to_string(row->line) + ", " + error.Field() + ": " +
                            error.what());
  }
}

}  // namespace

InvoiceList ReadInvoices(const StandardObject& standard, std::span<const CsvRow> rows,
                         const InvoiceDefaults& defaults) {
  InvoiceList list;
  const bool has_header =
      !rows.empty() && rows.front().mistake.empty() && IsHeader(standard, rows.front().fields);
  if (has_header) rows = rows.subspan(1);
  while (!rows.empty()) {
    const std::span<const CsvRow> own = TakeInvoice(rows);
    const auto& fields = own.front().fields;
    if (!fields.empty() && !fields.front().empty()) list.typed_numbers.insert(fields.front());
    AddInvoice(standard, own, defaults, list);
  }
  return list;
}

}  // namespace InvoiceDemo
