#ifndef ZQ7STANDARD_SRC_NUMBERS_ENGLISH_WORDS_H_
#define ZQ7STANDARD_SRC_NUMBERS_ENGLISH_WORDS_H_

#include <ZQ7Standard/Types.h>

namespace ZQ7Standard {

/// A money amount in English words with "baht" and "satang". Empty for
/// infinities and NaN.
Text EnglishMoneyWords(double amount);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_NUMBERS_ENGLISH_WORDS_H_
