#include "report.h"

#include <ZQ7Standard/BahtStringObject.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "amount_text.h"
#include "next_number.h"
#include "terminal_text.h"

namespace InvoiceDemo {
namespace {

using ZQ7Standard::BahtStringObject;
using ZQ7Standard::OleDate;
using ZQ7Standard::StandardObject;
using ZQ7Standard::Text;
using ZQ7Standard::TextView;

constexpr auto kIndent = u"  ";

using Columns = std::array<Text, 5>;
using Widths = std::array<int, 5>;

// A term from the end of a month is due some 150 years ahead: stored documents
// hold such dates, and the library gives them out again.
Columns MakeColumns(const StandardObject& standard, const Invoice& invoice) {
  const OleDate due = standard.GetConditionDueDate(invoice.date, invoice.condition_type,
                                                   invoice.net_days, invoice.delivery_days);
  return {
      standard.FormatTDate2(invoice.date, ZQ7Standard::ZQ7DMBBBB),
      standard.FormatThai(invoice.date),
      standard.FormatTDate2(due, ZQ7Standard::ZQ7DMBBBB),
      standard.FormatCondition2(static_cast<float>(invoice.discount_percent), invoice.discount_days,
                                invoice.condition_type, ZQ7Standard::ZQ7ConditionOutputTypeShort,
                                invoice.net_days),
      FormatAmount(invoice.amount),
  };
}

Widths WidestOf(const std::vector<Columns>& rows) {
  Widths widest = {};
  for (const Columns& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      widest[i] = std::max(widest[i], ZQ7Standard::TerminalWidth(row[i]));
    }
  }
  return widest;
}

/// The columns side by side, the amount in the last one aligned on its satang.
Text AlignColumns(const Columns& row, const Widths& widths) {
  Text line;
  for (std::size_t i = 0; i + 1 < row.size(); ++i) {
    line.append(kIndent).append(AlignLeft(row[i], widths[i]));
  }
  return line.append(kIndent).append(AlignRight(row.back(), widths.back()));
}

/// The lines of an invoice on paper, the last with the digest of those above it.
Text Document(const StandardObject& standard, const Invoice& invoice, const Text& columns) {
  BahtStringObject baht;
  Text heading = invoice.number + u"  " + invoice.customer_code + u"  ";
  for (const InvoiceLine& line : invoice.lines) heading += line.barcode + u"  ";
  heading += invoice.customer;
  Text lines = OneLine(heading) + u"\n" + columns + u"\n";
  lines += kIndent + baht.BahtString(invoice.amount) + u"\n";
  lines += kIndent + baht.BahtString(invoice.amount, false, true) + u"\n";
  return lines + kIndent + u"MD5 " + standard.CalculateMD5(lines) + u"\n";
}

}  // namespace

Text Report(const StandardObject& standard, const std::vector<Invoice>& invoices,
            const Totals& totals) {
  if (invoices.empty()) return {};
  std::vector<Columns> rows = {{u"Date", u"In full", u"Due", u"Term", u"Baht"}};
  for (const Invoice& invoice : invoices) rows.push_back(MakeColumns(standard, invoice));
  rows.push_back({u"Total", {}, {}, {}, FormatAmount(totals.Amount())});
  rows.push_back({u"Discount", u"if paid early", {}, {}, FormatAmount(totals.Discount())});
  const Widths widths = WidestOf(rows);

  Text report = AlignColumns(rows.front(), widths) + u"\n\n";
  for (std::size_t i = 0; i < invoices.size(); ++i) {
    report += Document(standard, invoices[i], AlignColumns(rows[i + 1], widths)) + u"\n";
  }
  for (const Columns& total : std::span(rows).last(2)) {
    report += AlignColumns(total, widths) + u"\n";
  }
  const Text next = NextNumber(standard, invoices.back().number);
  if (!next.empty()) report += kIndent + (u"Next number " + OneLine(next)) + u"\n";
  return report;
}

}  // namespace InvoiceDemo
