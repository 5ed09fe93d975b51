#ifndef ZQ7STANDARD_BENCH_INPUTS_H_
#define ZQ7STANDARD_BENCH_INPUTS_H_

#include <ZQ7Standard/StandardObject.h>

#include <cstddef>
#include <string>
#include <vector>

namespace ZQ7Standard::Bench {

// The inputs of the rows: mostly 1,024, the same on each run, so that branch predictors cannot
// memorize them.

/// An amount of money in the libraries' input forms.
struct Amount {
  double value;        // 0.01 to 9999999999.99; all lengths equally often
  std::string digits;  // "1234.50"
  Text typed;          // "1,234.50"
};
const std::vector<Amount>& Amounts();

/// A day as typed on a Thai machine, 2540 to 2580.
struct Day {
  OleDate date;
  std::string typed;  // "15/1/2567", some with leading zeros
  Text typed_text;    // the same
};
const std::vector<Day>& Days();

/// Those days, each at a time of day.
std::vector<OleDate> Moments();

/// A line of an invoice list.
struct Invoice {
  Text date;
  int condition;  // a ZQ7ConditionType
  std::int16_t delivery_days;
  std::int16_t net_days;
  float discount;  // percent; 0 for none
  std::int16_t discount_days;
  double amount;
};
const std::vector<Invoice>& Invoices();

/// Document numbers as users type them: " inv 2567-000123".
const std::vector<Text>& DocumentNumbers();

/// The first twelve digits of EAN-13 codes.
const std::vector<Text>& Barcodes();

/// Texts of `length` characters from invoices, Thai with a quarter of ASCII: about 16,384
/// characters in total, or a single longer text.
std::vector<Text> InvoiceTexts(std::size_t length);

/// The same texts in the code page.
std::vector<std::string> InvoiceBytes(std::size_t length);

/// One member of every item: a row is measured on only this, so that nothing else occupies the
/// caches.
template <typename Item, typename Member>
std::vector<Member> Column(const std::vector<Item>& list, Member Item::*member) {
  std::vector<Member> column;
  for (const Item& item : list) column.push_back(item.*member);
  return column;
}

}  // namespace ZQ7Standard::Bench

#endif  // ZQ7STANDARD_BENCH_INPUTS_H_
