#ifndef DEMO_ISSUE_H_
#define DEMO_ISSUE_H_

#include <ZQ7Standard/StandardObject.h>

#include <memory>
#include <string>

#include "invoice_list.h"
#include "office.h"
#include "pdf_folder.h"
#include "totals.h"

namespace InvoiceDemo {

/// Where invoices go besides the report.
struct Outlets {
  std::unique_ptr<Office> office;  ///< nothing where the data has no settings beside it
  std::unique_ptr<PdfFolder> pdf;  ///< nothing when no PDF files are wanted
};

/// Gives each invoice without a number one, makes its PDF file, adds it to the log and
/// to the totals. Stops at the first failure and returns its text; the list then holds
/// the invoices before that. An invoice without a number needs an office.
std::string IssueAll(const ZQ7Standard::StandardObject& standard, const Outlets& outlets,
                     InvoiceList& list, Totals& totals);

}  // namespace InvoiceDemo

#endif  // DEMO_ISSUE_H_
