#include "names.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace ZQ7Tool {
namespace {

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

std::string Quoted(std::string_view text) {
  return std::string("\"").append(text).append("\"");
}

bool IsIdentifier(std::string_view word) {
  return !word.empty() && std::ranges::all_of(word, IsIdentifierCharacter) &&
         !(word.front() >= '0' && word.front() <= '9');
}

std::string Hint(std::string_view misspelt, const std::vector<std::string>& candidates) {
  // One letter in three may be wrong; beyond that, two names are unrelated.
  std::size_t nearest = (misspelt.size() + 2) / 3 + 1;
  const std::string* found = nullptr;
  for (const std::string& candidate : candidates) {
    const std::size_t distance = DistanceFrom(misspelt, candidate);
    if (distance >= nearest) continue;
    nearest = distance;
    found = &candidate;
  }
  return found == nullptr ? "" : " Did you mean " + *found + "?";
}

}  // namespace ZQ7Tool
