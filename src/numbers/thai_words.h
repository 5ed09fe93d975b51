#ifndef ZQ7STANDARD_SRC_NUMBERS_THAI_WORDS_H_
#define ZQ7STANDARD_SRC_NUMBERS_THAI_WORDS_H_

#include <ZQ7Standard/Types.h>

namespace ZQ7Standard {

/// A money amount in Thai words with the words for the unit and for 1/100 of
/// it. Empty for infinities and NaN.
Text ThaiMoneyWords(double amount, TextView unit, TextView sub_unit);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_NUMBERS_THAI_WORDS_H_
