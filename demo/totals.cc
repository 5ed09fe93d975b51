#include "totals.h"

#include <ZQ7Standard/GridValueListener.h>
#include <ZQ7Standard/Types.h>

#include <memory>
#include <ostream>

#include "amount_text.h"

namespace InvoiceDemo {
namespace {

using ZQ7Standard::GridValueListener;
using ZQ7Standard::GridValueObject;
using ZQ7Standard::StandardObject;
using ZQ7Standard::Utf8;

enum Column : std::int32_t { kAmount, kDiscount, kColumnCount };

class RunningTotal final : public GridValueListener {
 public:
  RunningTotal(const GridValueObject& grid, std::ostream& out) : grid_(grid), out_(out) {}

  void CellDataChange(std::int32_t Row, std::int32_t Col) override {
    if (Col != kAmount) return;
    out_ << "invoice " << Row + 1
         << ", running total: " << Utf8(FormatAmount(grid_.SumCol(kAmount))) << '\n';
  }

 private:
  const GridValueObject& grid_;
  std::ostream& out_;
};

}  // namespace

double DiscountOf(const StandardObject& standard, const Invoice& invoice) {
  if (invoice.net_days == 0 || invoice.discount_days == 0) return 0;
  return standard.FixNumber(invoice.amount * invoice.discount_percent / 100, 2);
}

Totals::Totals() {
  grid_.SetCols(kColumnCount);
}

void Totals::Follow(std::ostream& out) {
  grid_.AddListener(std::make_shared<RunningTotal>(grid_, out));
}

void Totals::Add(const StandardObject& standard, const Invoice& invoice) {
  const std::int32_t row = invoices_++;
  grid_.Setvalue(row, kAmount, invoice.amount);
  grid_.Setvalue(row, kDiscount, DiscountOf(standard, invoice));
}

double Totals::Amount() const {
  return grid_.SumCol(kAmount);
}

double Totals::Discount() const {
  return grid_.SumCol(kDiscount);
}

}  // namespace InvoiceDemo
