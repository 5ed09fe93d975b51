#ifndef DEMO_REPORT_H_
#define DEMO_REPORT_H_

#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/Types.h>

#include <vector>

#include "invoice.h"
#include "totals.h"

namespace InvoiceDemo {

/// Writes each invoice as a block of lines: number, customer code, barcodes and
/// customer; date, date in words, due date, payment term and amount in aligned
/// columns; the amount in Thai words, and in English words; the MD5 digest of
/// these lines, line ends included, in Windows-874.
///
/// Behind the last come the totals, and the number that follows the last
/// invoice's unless that one ends in no number or in one of 15 or more digits.
/// Empty without invoices.
ZQ7Standard::Text Report(const ZQ7Standard::StandardObject& standard,
                         const std::vector<Invoice>& invoices, const Totals& totals);

}  // namespace InvoiceDemo

#endif  // DEMO_REPORT_H_
