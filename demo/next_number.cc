#include "next_number.h"

#include <cstddef>

namespace InvoiceDemo {
namespace {

using ZQ7Standard::StandardObject;
using ZQ7Standard::Text;
using ZQ7Standard::TextView;

constexpr std::size_t kMostCountedDigits = 14;  // `IncreaseString` writes 15 of them

}  // namespace

Text NextNumber(const StandardObject& standard, TextView last) {
  const TextView digits = last.substr(last.find_last_not_of(u"0123456789") + 1);
  if (digits.size() > kMostCountedDigits || standard.StrVal(digits) == 0) return {};
  return standard.IncreaseString(last);
}

}  // namespace InvoiceDemo
