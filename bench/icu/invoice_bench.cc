#include <unicode/calendar.h>
#include <unicode/numfmt.h>

#include <array>
#include <memory>
#include <vector>

#include "bench/icu/icu.h"
#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

// By `ZQ7ConditionType`.
constexpr std::array<const char16_t*, 9> kEvents = {u" AFTER INVOICE DATE",
                                                    u" AFTER DELIVERY DATE",
                                                    u" AFTER BILL DATE",
                                                    u" AFTER RECEIVE OS/DOC",
                                                    u" AFTER END OF INVOICE MONTH",
                                                    u" AFTER END OF DELIVERY MONTH",
                                                    u" AFTER END OF BILL MONTH",
                                                    u" AFTER END OF RECEIVE OS/DOC MONTH",
                                                    u" AFTER END OF SPT DATE"};
constexpr int kFirstMonthEnd = 3;
constexpr int kInvoiceMonthEnd = 4;

/// The work of an invoice row with ICU's objects, created once.
class IcuInvoice {
 public:
  explicit IcuInvoice(UErrorCode& status)
      : reader_(ThaiDateFormat(u"d/M/yyyy", status)),
        calendar_(icu::Calendar::createInstance(*icu::TimeZone::getGMT(), "th_TH@calendar=buddhist",
                                                status)),
        percent_(icu::NumberFormat::createInstance("th", status)),
        whole_(icu::NumberFormat::createInstance("th", status)),
        thai_(IcuMoneyWords::Thai(status)),
        english_(IcuMoneyWords::English(status)) {
    if (U_FAILURE(status)) return;
    percent_->setMinimumFractionDigits(1);
    percent_->setMaximumFractionDigits(1);
  }

  UDate DueDate(const icu::UnicodeString& typed, const Invoice& invoice, UErrorCode& status) {
    calendar_->setTime(reader_->parse(typed, status), status);
    if (invoice.condition >= kFirstMonthEnd) {
      calendar_->set(UCAL_DATE, calendar_->getActualMaximum(UCAL_DATE, status));
    }
    const bool delivery = invoice.condition != 0 && invoice.condition != kInvoiceMonthEnd;
    calendar_->add(UCAL_DATE, invoice.net_days + (delivery ? invoice.delivery_days : 0), status);
    return calendar_->getTime(status);
  }

  void AppendTerm(const Invoice& invoice, icu::UnicodeString& text) {
    if (invoice.net_days <= 0) {
      text.append(u"CASH", -1);
      return;
    }
    if (invoice.discount > 0) {
      percent_->format(static_cast<double>(invoice.discount), text);
      text.append(u'/');
      whole_->format(invoice.discount_days, text);
      text.append(u", ", -1);
    }
    text.append(u"N/", -1);
    whole_->format(invoice.net_days, text);
    text.append(kEvents[static_cast<std::size_t>(invoice.condition)], -1);
  }

  const IcuMoneyWords& Thai() const { return thai_; }
  const IcuMoneyWords& English() const { return english_; }

 private:
  std::unique_ptr<icu::SimpleDateFormat> reader_;
  std::unique_ptr<icu::Calendar> calendar_;
  std::unique_ptr<icu::NumberFormat> percent_;
  std::unique_ptr<icu::NumberFormat> whole_;
  IcuMoneyWords thai_;
  IcuMoneyWords english_;
};

struct TypedInvoice {
  icu::UnicodeString date;
  const Invoice* invoice;
};

std::vector<TypedInvoice> TypedInvoices() {
  std::vector<TypedInvoice> list;
  for (const Invoice& invoice : Invoices()) list.push_back({ToIcu(invoice.date), &invoice});
  return list;
}

void InvoiceRowIcu(benchmark::State& state) {
  UErrorCode status = U_ZERO_ERROR;
  IcuInvoice icu(status);
  if (U_FAILURE(status)) return Check(state, status);
  icu::UnicodeString term;
  icu::UnicodeString thai;
  icu::UnicodeString english;
  Measure(state, TypedInvoices(), [&](const TypedInvoice& typed) {
    const UDate due = icu.DueDate(typed.date, *typed.invoice, status);
    icu.AppendTerm(*typed.invoice, term.remove());
    icu.Thai().Append(typed.invoice->amount, thai.remove(), status);
    icu.English().Append(typed.invoice->amount, english.remove(), status);
    return due;
  });
  Check(state, status);
}
BENCHMARK(InvoiceRowIcu)->Name("invoice_row/icu");

}  // namespace
}  // namespace ZQ7Standard::Bench
