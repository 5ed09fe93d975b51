#include "issue.h"

#include <ZQ7Standard/Types.h>

#include <exception>
#include <set>

#include "amount_text.h"
#include "terminal_text.h"

namespace InvoiceDemo {
namespace {

using ZQ7Standard::FromUtf8;
using ZQ7Standard::StandardObject;
using ZQ7Standard::Text;
using ZQ7Standard::Utf8;

void MakePdf(const StandardObject& standard, const Outlets& outlets, const Invoice& invoice) {
  if (!outlets.pdf) return;
  outlets.pdf->Print(standard, outlets.office ? outlets.office->Sender() : Company(), invoice);
}

void Issue(const StandardObject& standard, const Outlets& outlets, const std::set<Text>& taken,
           Invoice& invoice) {
  if (invoice.number.empty()) invoice.number = outlets.office->TakeNumber(standard, taken);
  MakePdf(standard, outlets, invoice);
  if (!outlets.office) return;
  outlets.office->Log(
      u"Document", u"OK",
      invoice.number + u" " + invoice.customer_code + u" " + FormatAmount(invoice.amount));
}

/// Logs a document that came to nothing and tells what it failed of.
std::string Failure(const Outlets& outlets, const Invoice& invoice, const std::string& reason) {
  if (invoice.number.empty()) return reason;
  std::string text = Utf8(OneLine(invoice.number)) + ": " + reason;
  try {
    if (outlets.office) outlets.office->Log(u"Document", u"FAILED", FromUtf8(text));
  } catch (const std::exception& error) {
    text += std::string("; ") + error.what();
  }
  return text;
}

}  // namespace

std::string IssueAll(const StandardObject& standard, const Outlets& outlets, InvoiceList& list,
                     Totals& totals) {
  for (auto invoice = list.invoices.begin(); invoice != list.invoices.end(); ++invoice) {
    try {
      Issue(standard, outlets, list.typed_numbers, *invoice);
    } catch (const std::exception& error) {
      std::string failure = Failure(outlets, *invoice, error.what());
      list.invoices.erase(invoice, list.invoices.end());
      return failure;
    }
    totals.Add(standard, *invoice);
  }
  return {};
}

}  // namespace InvoiceDemo
