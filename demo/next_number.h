#ifndef DEMO_NEXT_NUMBER_H_
#define DEMO_NEXT_NUMBER_H_

#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/Types.h>

namespace InvoiceDemo {

/// The number that follows the document number `last`: "IV67-0100" follows
/// "IV67-0099". Empty when `last` ends in no number, or in one of 15 or more digits,
/// which cannot be counted up digit by digit.
ZQ7Standard::Text NextNumber(const ZQ7Standard::StandardObject& standard,
                             ZQ7Standard::TextView last);

}  // namespace InvoiceDemo

#endif  // DEMO_NEXT_NUMBER_H_
