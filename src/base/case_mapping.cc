#include "base/case_mapping.h"

#include <algorithm>
#include <span>

#include "base/ascii.h"
#include "base/case_tables.h"

namespace ZQ7Standard {
namespace {

char16_t Mapped(char16_t c, std::span<const CaseRange> ranges) {
  const auto range = std::ranges::lower_bound(ranges, c, {}, &CaseRange::last);
  const bool mapped =
      range != ranges.end() && c >= range->first && (c - range->first) % range->step == 0;
  return mapped ? static_cast<char16_t>(c + range->delta) : c;
}

char16_t ToLower(char16_t c) {
  return c < 0x80 ? AsciiLower(c) : Mapped(c, kToLower);
}

}  // namespace

Text ToLower(TextView text) {
  Text lower(text);
  for (char16_t& c : lower) c = ToLower(c);
  return lower;
}

char16_t ToUpper(char16_t c) {
  return c < 0x80 ? AsciiUpper(c) : Mapped(c, kToUpper);
}

bool EqualsIgnoringCase(TextView a, TextView b) {
  return std::ranges::equal(a, b, {}, ToUpper, ToUpper);
}

}  // namespace ZQ7Standard
