#ifndef EXAMPLES_INVOICE_REPORT_H_
#define EXAMPLES_INVOICE_REPORT_H_

#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/Types.h>

#include <vector>

#include "invoice.h"

namespace InvoiceDemo {

/// Writes each invoice as a block of lines: number and customer; date, date in
/// words, due date, payment term and amount in aligned columns; the amount in
/// Thai words, and in English words. Empty without invoices.
ZQ7Standard::Text Report(const ZQ7Standard::StandardObject& standard,
                         const std::vector<Invoice>& invoices);

}  // namespace InvoiceDemo

#endif  // EXAMPLES_INVOICE_REPORT_H_
