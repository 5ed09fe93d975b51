#include "text/case_mapping.h"

#include <algorithm>

#include "text/ascii.h"
#include "text/case_tables.h"

namespace ZQ7Standard {
namespace {

char16_t ToLower(char16_t c) {
  if (c < 0x80) return AsciiLower(c);
  const auto range = std::ranges::lower_bound(kToLower, c, {}, &CaseRange::last);
  const bool mapped =
      range != kToLower.end() && c >= range->first && (c - range->first) % range->step == 0;
  return mapped ? static_cast<char16_t>(c + range->delta) : c;
}

}  // namespace

Text ToLower(TextView text) {
  Text lower(text);
  for (char16_t& c : lower) c = ToLower(c);
  return lower;
}

}  // namespace ZQ7Standard
