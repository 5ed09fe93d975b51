#ifndef DEMO_TOTALS_H_
#define DEMO_TOTALS_H_

#include <ZQ7Standard/GridValueObject.h>
#include <ZQ7Standard/StandardObject.h>

#include <cstdint>
#include <iosfwd>

#include "invoice.h"

namespace InvoiceDemo {

/// The discount in baht that the payment term grants: none to those who pay at once,
/// and none without days to earn it in.
double DiscountOf(const ZQ7Standard::StandardObject& standard, const Invoice& invoice);

/// What all invoices come to, from a grid with a row for each.
class Totals {
 public:
  Totals();

  /// From now on writes the running total to `out`, a line for each invoice.
  /// `out` must outlive the totals.
  void Follow(std::ostream& out);

  void Add(const ZQ7Standard::StandardObject& standard, const Invoice& invoice);

  double Amount() const;    ///< baht
  double Discount() const;  ///< baht; what all customers save who pay early

 private:
  ZQ7Standard::GridValueObject grid_;
  std::int32_t invoices_ = 0;
};

}  // namespace InvoiceDemo

#endif  // DEMO_TOTALS_H_
