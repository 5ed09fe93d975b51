#ifndef DEMO_INVOICE_H_
#define DEMO_INVOICE_H_

#include <ZQ7Standard/StandardObject.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "csv_rows.h"

namespace InvoiceDemo {

using namespace ZQ7Standard;

/// One line of an invoice: what is sold.
struct InvoiceLine {
  Text barcode;  ///< EAN-13
  Text item;     ///< empty when it was not typed
  double quantity = 1;
  double price = 0;            ///< baht for one
  double amount = 0;           ///< baht, rounded to satang
  std::optional<double> cost;  ///< baht for one, what the seller paid
};

struct Invoice {
  Text number;         ///< empty until the office assigns one
  Text customer_code;  ///< in upper case
  Text customer;
  OleDate date;
  ZQ7ConditionType condition_type;
  std::int16_t delivery_days;
  std::int16_t net_days;
  double discount_percent;
  std::int16_t discount_days;
  std::vector<InvoiceLine> lines = {};  ///< from 1 to `kMostLines`
  double amount = 0;                    ///< baht, rounded to satang; the sum of the lines
  double discount = 0;                  ///< baht, for those who pay early
  OleDate due = {};
};

inline constexpr std::size_t kMostLines = 12;  ///< what a page has room for

/// The invoices of a table, and a line of text for each that has a mistake.
struct InvoiceList {
  std::vector<Invoice> invoices;
  std::vector<std::string> mistakes;
  std::set<Text> typed_numbers;  ///< also those of rows with a mistake
};

/// Reads the invoices of a table: number, customer code, customer, date, condition type,
/// delivery days, net days, discount percent, discount days, barcode, amount, and perhaps
/// item, quantity and price, which must come to the amount, and a cost. The first row may
/// name the columns: it has no digit where an invoice has its date. A row whose fields
/// before the barcode are empty is a further line of the invoice above it. A mistake in one
/// of its lines costs the whole invoice: a part of it has another amount.
///
/// With the net days that an office has as default, they may be left out, and the number.
InvoiceList ReadInvoices(const StandardObject& standard, std::span<const CsvRow> rows,
                         const std::optional<Text>& default_net_days);

/// The payment term in trade notation: "2.0/10, N/30 AID".
Text TermOf(const StandardObject& standard, const Invoice& invoice, ZQ7ConditionOutputType type);

/// Puts "," between the thousands of a decimal number: "-1234.5" gives "-1,234.5".
Text GroupThousands(Text number);

/// Writes an amount, 0 or more, to the satang: "1,234.50".
Text FormatAmount(double amount);

/// Puts one blank for each run of line breaks and other control characters, so that a
/// typed text stays on its line and cannot steer the terminal.
Text OneLine(TextView text);

}  // namespace InvoiceDemo

#endif  // DEMO_INVOICE_H_
