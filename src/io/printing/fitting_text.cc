#include "io/printing/fitting_text.h"

#include <algorithm>
#include <cstddef>

#include "base/unicode.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kReach = 64;  // code units

/// The first `size` code units of `text`, without half a surrogate pair at the end.
TextView WholeCharacters(TextView text, std::size_t size) {
  const bool splits = size > 0 && size < text.size() && IsHighSurrogate(text[size - 1]) &&
                      IsLowSurrogate(text[size]);
  return text.substr(0, splits ? size - 1 : size);
}

}  // namespace

TextView FittingStart(TextView text, double limit, double shrinkage,
                      const std::function<double(TextView)>& width) {
  if (width(text) <= limit) return text;
  std::size_t fitting = 0;
  std::size_t too_long = text.size();
  while (too_long - fitting > 1) {
    const std::size_t middle = fitting + (too_long - fitting) / 2;
    (width(WholeCharacters(text, middle)) <= limit ? fitting : too_long) = middle;
  }
  // A longer text may still fit.
  const std::size_t end = std::min(text.size(), too_long + kReach);
  for (std::size_t size = too_long; size < end; ++size) {
    const double wide = width(WholeCharacters(text, size));
    if (wide <= limit) fitting = size;
    if (wide > limit + shrinkage) break;
  }
  return WholeCharacters(text, fitting);
}

}  // namespace ZQ7Standard
