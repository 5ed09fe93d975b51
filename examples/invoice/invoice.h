#ifndef EXAMPLES_INVOICE_INVOICE_H_
#define EXAMPLES_INVOICE_INVOICE_H_

#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace InvoiceDemo {

struct Invoice {
  ZQ7Standard::Text number;
  ZQ7Standard::Text customer_code;  ///< in upper case
  ZQ7Standard::Text customer;
  ZQ7Standard::OleDate date;
  ZQ7Standard::ZQ7ConditionType condition_type;
  std::int16_t delivery_days;
  std::int16_t net_days;
  double discount_percent;
  std::int16_t discount_days;
  ZQ7Standard::Text barcode;  ///< the item's EAN-13
  double amount;              ///< baht, rounded to satang
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

/// Reads an invoice from a row of eleven typed fields: number, customer code,
/// customer, date, condition type, delivery days, net days, discount percent,
/// discount days, barcode, amount. Throws a `FieldError` for the first field that
/// cannot be taken.
///
/// The library's readers take what they can from a text, as screens want it
/// while a user types: "12x" is 12, "abc" is 0. An invoice must not be guessed,
/// so here a field is looked at first and must be a date or a number as a whole.
Invoice ReadInvoice(const ZQ7Standard::StandardObject& standard,
                    const std::vector<ZQ7Standard::Text>& fields);

}  // namespace InvoiceDemo

#endif  // EXAMPLES_INVOICE_INVOICE_H_
