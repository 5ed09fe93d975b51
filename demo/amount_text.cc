#include "amount_text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

namespace InvoiceDemo {

using ZQ7Standard::FromUtf8;
using ZQ7Standard::Text;

Text GroupThousands(Text number) {
  const std::size_t first_digit = number.starts_with(u'-') || number.starts_with(u'+') ? 1 : 0;
  std::size_t position = std::min(number.find(u'.'), number.size());
  for (; position > first_digit + 3; number.insert(position, 1, u',')) position -= 3;
  return number;
}

// Counted in satang: `d2Str` writes 15 digits, and a total may have more.
Text FormatAmount(double amount) {
  Text digits = FromUtf8(std::to_string(std::llround(amount * 100)));
  if (digits.size() < 3) digits.insert(0, 3 - digits.size(), u'0');
  return GroupThousands(digits.insert(digits.size() - 2, 1, u'.'));
}

}  // namespace InvoiceDemo
