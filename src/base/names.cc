#include <ZQ7Standard/Names.h>

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <vector>

#include "base/ascii.h"

namespace ZQ7Standard {
namespace {

char16_t Lower(char c) {
  return AsciiLower(static_cast<unsigned char>(c));
}

/// The number of letters to insert, delete or change to turn one name into the other.
std::size_t EditDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);  // from the prefix of `a` so far to those of `b`
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t changed = diagonal + (Lower(a[i]) == Lower(b[j]) ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
    }
  }
  return row.back();
}

/// The same for a name that may also be cut short.
std::size_t DistanceFrom(std::string_view name, std::string_view candidate) {
  const std::size_t cut = EditDistance(name, candidate.substr(0, name.size())) + 1;
  return std::min(EditDistance(name, candidate), cut);
}

}  // namespace

std::string_view NearestName(std::string_view misspelt,
                             std::span<const std::string_view> candidates) {
  // One letter in three may be wrong; beyond that, two names are unrelated.
  std::size_t nearest = (misspelt.size() + 2) / 3 + 1;
  std::string_view found;
  for (const std::string_view candidate : candidates) {
    const std::size_t distance = DistanceFrom(misspelt, candidate);
    if (distance >= nearest) continue;
    nearest = distance;
    found = candidate;
  }
  return found;
}

}  // namespace ZQ7Standard
