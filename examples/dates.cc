// Reads dates as users type them in the Buddhist and the Gregorian era, shows them in both, and
// tells when an invoice is due.
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/date_convention.h>

#include <iostream>

int main() {
  using namespace ZQ7Standard;
  // StandardObject() takes the convention of the machine's locale; an office may fix its own.
  const StandardObject thai(
      {.date_convention = FixedDateConvention({FieldOrder::kDayFirst, Era::kBuddhist})});
  const StandardObject american(
      {.date_convention = FixedDateConvention({FieldOrder::kMonthFirst, Era::kGregorian})});

  for (const TextView typed : {u"15/1/2567", u"29/2/2566"}) {
    if (!thai.IsTDate(typed)) {
      std::cout << Utf8(typed) << " is not a date\n";
      continue;
    }
    const OleDate date = thai.CTDATE(typed);
    std::cout << Utf8(typed) << " is " << Utf8(american.FormatTDate(date)) << ", "
              << Utf8(thai.FormatThai(date)) << ", " << Utf8(thai.FormatEnglish(date)) << '\n';
  }

  const OleDate invoiced = american.CTDATE(u"1/15/2024");
  const OleDate due = thai.GetConditionDueDate(invoiced, ZQ7AfterInvoiceDate, 30, 0);
  std::cout << "invoiced " << Utf8(thai.FormatTDate(invoiced)) << ", "
            << Utf8(thai.FormatCondition2(2, 10, ZQ7AfterInvoiceDate, ZQ7ConditionOutputTypeFull,
                                          30))
            << ": due " << Utf8(thai.FormatTDate(due)) << '\n';
}
