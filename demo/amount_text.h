#ifndef DEMO_AMOUNT_TEXT_H_
#define DEMO_AMOUNT_TEXT_H_

#include <ZQ7Standard/Types.h>

namespace InvoiceDemo {

/// Puts "," between the thousands of a decimal number: "-1234.5" gives
/// "-1,234.5".
ZQ7Standard::Text GroupThousands(ZQ7Standard::Text number);

/// Writes an amount, 0 or more, to the satang: "1,234.50".
ZQ7Standard::Text FormatAmount(double amount);

}  // namespace InvoiceDemo

#endif  // DEMO_AMOUNT_TEXT_H_
