// A host that uses only what is installed.

#include <ZQ7Standard/BahtStringObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/date_convention.h>

#include <iostream>

int main() {
  using namespace ZQ7Standard;
  const StandardObject object(
      {.date_convention = FixedDateConvention({FieldOrder::kDayFirst, Era::kBuddhist})});
  std::cout << Utf8(object.FormatTDate2(object.CTDATE(u"15/1/2567"), ZQ7DMMMBBBB)) << '\n'
            << Utf8(BahtStringObject().BahtString(121.5)) << '\n';
  try {
    object.CTDATE(u"1/15/2567");
  } catch (const RunTimeError& error) {
    std::cout << error.Number() << '\n';
  }
}
