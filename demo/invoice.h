#ifndef DEMO_INVOICE_H_
#define DEMO_INVOICE_H_

#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/Types.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace InvoiceDemo {

/// One line of an invoice: what is sold.
struct InvoiceLine {
  ZQ7Standard::Text barcode;  ///< EAN-13
  ZQ7Standard::Text item;     ///< empty when it was not typed
  double quantity = 1;
  double price = 0;            ///< baht for one
  double amount = 0;           ///< baht, rounded to satang
  std::optional<double> cost;  ///< baht for one, what the seller paid
};

struct Invoice {
  ZQ7Standard::Text number;         ///< empty until the office gives it one
  ZQ7Standard::Text customer_code;  ///< in upper case
  ZQ7Standard::Text customer;
  ZQ7Standard::OleDate date;
  ZQ7Standard::ZQ7ConditionType condition_type;
  std::int16_t delivery_days;
  std::int16_t net_days;
  double discount_percent;
  std::int16_t discount_days;
  std::vector<InvoiceLine> lines;  ///< from 1 to `kMostLines`
  double amount;                   ///< baht, rounded to satang; the sum of the lines
};

inline constexpr std::size_t kMostLines = 12;  ///< what a page has room for

/// What stands for a field that was left empty.
struct InvoiceDefaults {
  bool may_lack_number = false;  ///< the office gives the invoice one
  ZQ7Standard::Text net_days;    ///< as typed; empty for none
};

/// What is wrong with a row: the field, and the reason in UTF-8.
class FieldError : public std::runtime_error {
 public:
  FieldError(const char* field, const std::string& reason)
      : std::runtime_error(reason), field_(field) {}

  const char* Field() const noexcept { return field_; }

 private:
  const char* field_;
};

/// Whether the first row of a table names the columns: it has no digit where an
/// invoice has its date.
bool IsHeader(const ZQ7Standard::StandardObject& standard,
              const std::vector<ZQ7Standard::Text>& fields);

/// Whether a row is a further line of the invoice above it: it begins with the
/// barcode, and the fields before that are empty.
bool IsFurtherLine(const std::vector<ZQ7Standard::Text>& fields);

/// Reads an invoice with its first line from a row of typed fields: number, customer
/// code, customer, date, condition type, delivery days, net days, discount percent,
/// discount days, barcode, amount, and perhaps item, quantity and price, which must
/// come to the amount, and a cost. Throws a `FieldError` for the first field that cannot
/// be taken.
///
/// The library's readers take what they can from a text, as screens want it
/// while a user types: "12x" is 12, "abc" is 0. An invoice must not be guessed,
/// so here a field is looked at first and must be a date or a number as a whole.
Invoice ReadInvoice(const ZQ7Standard::StandardObject& standard,
                    const std::vector<ZQ7Standard::Text>& fields, const InvoiceDefaults& defaults);

/// Adds a further line to `invoice` from a row whose fields from the barcode on are
/// those of `ReadInvoice`. Throws a `FieldError` in the same way.
void ReadFurtherLine(const ZQ7Standard::StandardObject& standard,
                     const std::vector<ZQ7Standard::Text>& fields, Invoice& invoice);

}  // namespace InvoiceDemo

#endif  // DEMO_INVOICE_H_
