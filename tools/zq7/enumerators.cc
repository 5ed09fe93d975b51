#include "enumerators.h"

#include <algorithm>
#include <vector>

#include "names.h"

namespace ZQ7Tool {

using namespace ZQ7Standard::Automation;

std::optional<std::int32_t> ValueOfEnumerator(const EnumerationInfo& enumeration,
                                              std::string_view name) {
  const auto found = std::ranges::find_if(enumeration.members, [&](const EnumeratorInfo& member) {
    return SameName(member.name, name);
  });
  if (found == enumeration.members.end()) return std::nullopt;
  return found->value;
}

std::string EnumeratorHint(const EnumerationInfo& enumeration, std::string_view misspelt) {
  std::vector<std::string> names;
  for (const EnumeratorInfo& member : enumeration.members) names.emplace_back(member.name);
  return Hint(misspelt, names);
}

}  // namespace ZQ7Tool
