#ifndef DEMO_PAGE_H_
#define DEMO_PAGE_H_

#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/StandardObject.h>

#include "invoice.h"
#include "office.h"

namespace InvoiceDemo {

/// Draws an invoice on the printer's page, A4 upright: the sender with its logo, the
/// customer, a table of the lines, the totals, the amount in Thai and English words,
/// the payment term, and a date for each row of cheque boxes.
void DrawPage(ZQ7Standard::PrintObject& printer, const ZQ7Standard::StandardObject& standard,
              const Company& sender, const Invoice& invoice);

}  // namespace InvoiceDemo

#endif  // DEMO_PAGE_H_
