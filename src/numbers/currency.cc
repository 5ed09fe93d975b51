#include <ZQ7Standard/Types.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "base/ascii.h"
#include "base/raise.h"
#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

constexpr int kDecimals = 4;
constexpr double kUnit = 10000;
constexpr std::size_t kMaxWholeDigits = 15;
constexpr std::uint64_t kMaxMagnitude = std::numeric_limits<std::int64_t>::max();

/// `whole`.`fraction` in 1/10000 units, ties to even. All characters are digits, and `whole` has at
/// most 15 after leading zeros.
std::uint64_t ScaledMagnitude(TextView whole, TextView fraction) {
  std::uint64_t scaled = 0;
  for (const char16_t digit : whole) scaled = scaled * 10 + static_cast<unsigned>(digit - u'0');
  for (std::size_t i = 0; i < kDecimals; ++i) {
    const auto digit = i < fraction.size() ? static_cast<unsigned>(fraction[i] - u'0') : 0U;
    scaled = scaled * 10 + digit;
  }
  if (fraction.size() <= kDecimals) return scaled;
  const TextView rest = fraction.substr(kDecimals);
  const bool tie = rest.front() == u'5' && rest.find_first_not_of(u'0', 1) == TextView::npos;
  const bool up = tie ? scaled % 2 == 1 : rest.front() >= u'5';
  return up ? scaled + 1 : scaled;
}

}  // namespace

Currency::Currency(double amount) {
  // The whole part is scaled separately, so that the product loses no digit of a large amount.
  const double whole = std::trunc(amount);
  const double fraction = std::nearbyint((amount - whole) * kUnit);
  constexpr double kLimit = 922337203685477;
  const bool in_range =
      std::abs(whole) < kLimit || (std::abs(whole) == kLimit && std::abs(fraction) <= 5807);
  if (!in_range) Raise(Error::kOverflow, {"Currency", "amount"}, amount);
  scaled_ = static_cast<std::int64_t>(whole) * 10000 + static_cast<std::int64_t>(fraction);
}

Currency Currency::FromText(TextView text) {
  const bool negative = text.starts_with(u'-');
  const TextView number = text.substr(negative || text.starts_with(u'+') ? 1 : 0);
  const std::size_t point = std::min(number.find(u'.'), number.size());
  TextView whole = number.substr(0, point);
  const TextView fraction = number.substr(std::min(point + 1, number.size()));
  const bool digits_only =
      std::ranges::all_of(whole, IsAsciiDigit) && std::ranges::all_of(fraction, IsAsciiDigit);
  if (!digits_only || whole.size() + fraction.size() == 0) {
    Raise(Error::kTypeMismatch, {"Currency::FromText", "text"}, text);
  }
  whole.remove_prefix(std::min(whole.find_first_not_of(u'0'), whole.size()));
  const std::uint64_t limit = kMaxMagnitude + (negative ? 1 : 0);
  const std::uint64_t scaled =
      whole.size() <= kMaxWholeDigits ? ScaledMagnitude(whole, fraction) : limit + 1;
  if (scaled > limit) Raise(Error::kOverflow, {"Currency::FromText", "text"}, text);
  return FromScaled(static_cast<std::int64_t>(negative ? -scaled : scaled));
}

double Currency::ToDouble() const {
  return static_cast<double>(scaled_) / kUnit;
}

Text Currency::ToText() const {
  const auto bits = static_cast<std::uint64_t>(scaled_);
  const bool negative = scaled_ < 0;
  const std::string digits = std::to_string(negative ? -bits : bits);
  const std::size_t zeros = kDecimals + 1 - std::min<std::size_t>(digits.size(), kDecimals + 1);
  Text text(negative ? 1 : 0, u'-');
  text.append(zeros, u'0').append(digits.begin(), digits.end());
  text.insert(text.size() - kDecimals, 1, u'.');
  return text;
}

}  // namespace ZQ7Standard
