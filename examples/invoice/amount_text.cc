#include "amount_text.h"

#include <algorithm>
#include <cstddef>

namespace InvoiceDemo {

using ZQ7Standard::StandardObject;
using ZQ7Standard::Text;

Text GroupThousands(Text number) {
  const std::size_t first_digit = number.starts_with(u'-') || number.starts_with(u'+') ? 1 : 0;
  std::size_t position = std::min(number.find(u'.'), number.size());
  for (; position > first_digit + 3; number.insert(position, 1, u',')) position -= 3;
  return number;
}

Text FormatAmount(const StandardObject& standard, double amount) {
  Text digits = standard.d2Str(amount);
  if (digits.find(u'.') == Text::npos) digits += u'.';
  const std::size_t decimals = digits.size() - digits.find(u'.') - 1;
  return GroupThousands(digits.append(2 - decimals, u'0'));
}

}  // namespace InvoiceDemo
