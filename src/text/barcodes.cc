#include <ZQ7Standard/StandardObject.h>

#include "base/ascii.h"

namespace ZQ7Standard {
namespace {

constexpr int DigitValue(char16_t c) {
  return IsAsciiDigit(c) ? c - u'0' : 0;
}

/// The GS1 check digit of the first `Length` characters of `code`: alternating weights 3 and 1, the
/// last character having 3. -1 for a shorter code.
template <std::size_t Length>
std::int16_t CheckDigit(TextView code) {
  if (code.size() < Length) return -1;
  int sum = 0;
  for (std::size_t i = 0; i < Length; ++i) {
    const int weight = (Length - i) % 2 == 1 ? 3 : 1;
    sum += weight * DigitValue(code[i]);
  }
  return static_cast<std::int16_t>((10 - sum % 10) % 10);
}

}  // namespace

std::int16_t StandardObject::GetEAN13ChekDigit(TextView sCodice) const {
  return CheckDigit<12>(sCodice);
}

std::int16_t StandardObject::GetITF14ChekDigit(TextView sCodice) const {
  return CheckDigit<13>(sCodice);
}

}  // namespace ZQ7Standard
