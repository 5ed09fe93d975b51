#include <ZQ7Standard/BahtStringObject.h>
#include <ZQ7Standard/StandardObject.h>

#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

/// The texts that a host prints for one invoice.
struct Row {
  OleDate due;
  Text term;
  Text thai;
  Text english;
};

void InvoiceRow(benchmark::State& state) {
  const StandardObject standard;
  BahtStringObject words;
  Measure(state, Invoices(), [&](const Invoice& invoice) {
    Row row;
    if (!standard.IsTDate(invoice.date)) return row;
    row.due = standard.GetConditionDueDate(standard.CTDATE(invoice.date),
                                           static_cast<ZQ7ConditionType>(invoice.condition),
                                           invoice.net_days, invoice.delivery_days);
    row.term = standard.FormatCondition(invoice.discount, invoice.discount_days,
                                        static_cast<float>(invoice.condition), 1,
                                        static_cast<float>(invoice.net_days));
    row.thai = words.BahtString(invoice.amount);
    row.english = words.BahtString(invoice.amount, false, true);
    return row;
  });
}
BENCHMARK(InvoiceRow)->Name("invoice_row/ours");

}  // namespace
}  // namespace ZQ7Standard::Bench
