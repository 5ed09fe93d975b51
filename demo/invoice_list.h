#ifndef DEMO_INVOICE_LIST_H_
#define DEMO_INVOICE_LIST_H_

#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/Types.h>

#include <set>
#include <span>
#include <string>
#include <vector>

#include "csv.h"
#include "invoice.h"

namespace InvoiceDemo {

/// The invoices of a table, and a line of text for each that has a mistake.
struct InvoiceList {
  std::vector<Invoice> invoices;
  std::vector<std::string> mistakes;
  std::set<ZQ7Standard::Text> typed_numbers;  ///< also those of rows with a mistake
};

/// Reads the invoices of a table, whose first row may name the columns. A mistake in
/// one of its lines costs the whole invoice: a part of it has another amount.
InvoiceList ReadInvoices(const ZQ7Standard::StandardObject& standard, std::span<const CsvRow> rows,
                         const InvoiceDefaults& defaults);

}  // namespace InvoiceDemo

#endif  // DEMO_INVOICE_LIST_H_
