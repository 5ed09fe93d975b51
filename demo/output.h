#ifndef DEMO_OUTPUT_H_
#define DEMO_OUTPUT_H_

#include <ZQ7Standard/GridValueObject.h>

#include <cstdint>
#include <filesystem>
#include <vector>

#include "invoice.h"
#include "office.h"

namespace InvoiceDemo {

/// The columns of the totals, a grid with a row for each invoice, in baht.
enum TotalsColumn : std::int32_t { kAmounts, kDiscounts, kTotalsColumnCount };

/// Writes each invoice as a block of lines: number, customer code, barcodes and
/// customer; date, date in words, due date, payment term and amount in aligned
/// columns; the amount in Thai words, and in English words; the MD5 digest of
/// these lines, line ends included, in Windows-874.
///
/// After the last come the totals, and the number that follows the last invoice's if
/// there is one. Empty without invoices.
Text Report(const StandardObject& standard, const std::vector<Invoice>& invoices,
            const GridValueObject& totals);

/// Prints an invoice to a PDF file in `folder` by the name of its number, "IV67-0026.pdf",
/// and replaces one of that name: a page A4 upright with the sender and its logo, the
/// customer, a table of the lines, the totals, the amount in Thai and English words, the
/// payment term, and a date for each row of cheque boxes.
///
/// The file is there whole or not at all; a `std::runtime_error` tells why it cannot be made.
/// Asks no print server: `CUPS_SERVER` names none.
void MakePdf(const StandardObject& standard, const Company& sender, const Invoice& invoice,
             const std::filesystem::path& folder);

}  // namespace InvoiceDemo

#endif  // DEMO_OUTPUT_H_
