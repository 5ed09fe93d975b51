#include <ZQ7Standard/BahtStringObject.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "output.h"

namespace InvoiceDemo {
namespace {

constexpr auto kIndent = u"  ";

using Columns = std::array<Text, 5>;

/// Each row as a line: its columns side by side, the last one aligned on its satang.
std::vector<Text> Align(const std::vector<Columns>& rows) {
  std::vector<Text> lines(rows.size());
  for (std::size_t column = 0; column < rows.front().size(); ++column) {
    const auto width = [column](const Columns& row) { return TerminalWidth(row[column]); };
    const int widest = width(*std::ranges::max_element(rows, {}, width));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const Text& text = rows[i][column];
      const Text blanks(static_cast<std::size_t>(widest - width(rows[i])), u' ');
      lines[i] += kIndent + (column + 1 < rows[i].size() ? text + blanks : blanks + text);
    }
  }
  return lines;
}

/// The lines of an invoice, the last with the digest of those above it.
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
            const GridValueObject& totals) {
  if (invoices.empty()) return {};
  std::vector<Columns> rows = {{u"Date", u"In full", u"Due", u"Term", u"Baht"}};
  for (const Invoice& invoice : invoices) {
    rows.push_back(
        {standard.FormatTDate2(invoice.date, ZQ7DMBBBB), standard.FormatThai(invoice.date),
         standard.FormatTDate2(invoice.due, ZQ7DMBBBB),
         TermOf(standard, invoice, ZQ7ConditionOutputTypeShort), FormatAmount(invoice.amount)});
  }
  rows.push_back({u"Total", {}, {}, {}, FormatAmount(totals.SumCol(kAmounts))});
  rows.push_back({u"Discount", u"if paid early", {}, {}, FormatAmount(totals.SumCol(kDiscounts))});
  const std::vector<Text> lines = Align(rows);

  Text report = lines.front() + u"\n\n";
  for (std::size_t i = 0; i < invoices.size(); ++i) {
    report += Document(standard, invoices[i], lines[i + 1]) + u"\n";
  }
  for (const Text& total : std::span(lines).last(2)) report += total + u"\n";
  const Text next = NextNumber(standard, invoices.back().number);
  if (!next.empty()) report += kIndent + (u"Next number " + OneLine(next)) + u"\n";
  return report;
}

}  // namespace InvoiceDemo
