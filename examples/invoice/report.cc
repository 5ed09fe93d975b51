#include "report.h"

#include <ZQ7Standard/BahtStringObject.h>

#include <algorithm>
#include <array>
#include <cstddef>

#include "amount_text.h"
#include "terminal_text.h"

namespace InvoiceDemo {
namespace {

using ZQ7Standard::BahtStringObject;
using ZQ7Standard::OleDate;
using ZQ7Standard::StandardObject;
using ZQ7Standard::Text;
using ZQ7Standard::TextView;

constexpr TextView kIndent = u"  ";

using Columns = std::array<Text, 5>;
using Widths = std::array<int, 5>;

// A term from the end of a month is due some 150 years ahead: stored documents
// hold such dates, and the library gives them out again.
Columns MakeColumns(const StandardObject& standard, const Invoice& invoice) {
  const OleDate due = standard.GetConditionDueDate(invoice.date, invoice.condition_type,
                                                   invoice.net_days, invoice.delivery_days);
  return {
      standard.FormatTDate2(invoice.date, ZQ7Standard::ZQ7DMBBBB),
      standard.FormatTDate2(invoice.date, ZQ7Standard::ZQ7DMMMBBBB),
      standard.FormatTDate2(due, ZQ7Standard::ZQ7DMBBBB),
      standard.FormatCondition2(invoice.discount_percent, invoice.discount_days,
                                invoice.condition_type, ZQ7Standard::ZQ7ConditionOutputTypeShort,
                                invoice.net_days),
      FormatAmount(standard, invoice.amount),
  };
}

Widths WidestOf(const std::vector<Columns>& rows) {
  Widths widest = {};
  for (const Columns& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      widest[i] = std::max(widest[i], TerminalWidth(row[i]));
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

}  // namespace

Text Report(const StandardObject& standard, const std::vector<Invoice>& invoices) {
  if (invoices.empty()) return {};
  std::vector<Columns> rows = {{u"Date", u"In full", u"Due", u"Term", u"Baht"}};
  for (const Invoice& invoice : invoices) rows.push_back(MakeColumns(standard, invoice));
  const Widths widths = WidestOf(rows);

  BahtStringObject baht;
  Text report = AlignColumns(rows.front(), widths) + u"\n";
  for (std::size_t i = 0; i < invoices.size(); ++i) {
    const Invoice& invoice = invoices[i];
    report.append(u"\n").append(OneLine(invoice.number + u"  " + invoice.customer));
    report.append(u"\n").append(AlignColumns(rows[i + 1], widths));
    report.append(u"\n").append(kIndent).append(baht.BahtString(invoice.amount));
    report.append(u"\n").append(kIndent).append(baht.BahtString(invoice.amount, false, true));
    report.append(u"\n");
  }
  return report;
}

}  // namespace InvoiceDemo
