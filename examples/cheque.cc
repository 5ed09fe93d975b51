// Writes a cheque from an amount as it was typed: the date for the boxes, and the amount in Thai
// and in English words between marks that leave no room for more.
#include <ZQ7Standard/BahtStringObject.h>
#include <ZQ7Standard/StandardObject.h>

#include <iostream>

int main() {
  using namespace ZQ7Standard;
  const StandardObject standard;
  BahtStringObject baht;

  const OleDate date = OleDate::FromParts(2024, 1, 15);
  const TextView typed = u"12,346.25";
  // Rounded to the satang, because the words have no more.
  const double amount = standard.FixNumber(standard.StrVal(typed), 2);
  std::cout << Utf8(standard.FormatTDate2(date, ZQ7D_D_M_M_B_B_B_B)) << '\n'
            << Utf8(typed) << '\n'
            << Utf8(baht.BahtString(amount, true)) << '\n'
            << Utf8(baht.BahtString(amount, true, true)) << '\n';
}
