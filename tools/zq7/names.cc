#include "names.h"

#include <ZQ7Standard/Names.h>

#include <algorithm>

namespace ZQ7Tool {

std::string Quoted(std::string_view text) {
  return std::string("\"").append(text).append("\"");
}

bool IsIdentifier(std::string_view word) {
  return !word.empty() && std::ranges::all_of(word, IsIdentifierCharacter) &&
         !(word.front() >= '0' && word.front() <= '9');
}

std::string Hint(std::string_view misspelt, const std::vector<std::string>& candidates) {
  const std::vector<std::string_view> names(candidates.begin(), candidates.end());
  const std::string_view nearest = ZQ7Standard::NearestName(misspelt, names);
  return nearest.empty() ? "" : " Did you mean " + std::string(nearest) + "?";
}

}  // namespace ZQ7Tool
