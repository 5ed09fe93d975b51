#include "automation/documentation.h"

#include <ZQ7Standard/Enumerations.h>
#include <ZQ7Standard/automation/catalogue.h>

#include <algorithm>
#include <array>
#include <utility>

namespace ZQ7Standard::Automation {
namespace {

struct MemberRow {
  std::string_view name;
  Documentation documentation;
};

struct ParameterHelpRow {
  std::string_view member;
  std::string_view parameter;
  std::string_view help;
};

// kMembers, kParameters and kEnumerations, the first two sorted by name.
#include "automation/documentation.inc"

}  // namespace

Documentation DocumentationOf(std::string_view qualified_name) {
  const auto row = std::ranges::lower_bound(kMembers, qualified_name, {}, &MemberRow::name);
  const bool found = row != kMembers.end() && row->name == qualified_name;
  return found ? row->documentation : Documentation();
}

std::string_view ParameterHelp(std::string_view qualified_name, std::string_view parameter) {
  const auto key = [](const ParameterHelpRow& row) { return std::pair(row.member, row.parameter); };
  const std::pair wanted(qualified_name, parameter);
  const auto row = std::ranges::lower_bound(kParameters, wanted, {}, key);
  return row != kParameters.end() && key(*row) == wanted ? row->help : std::string_view();
}

std::span<const EnumerationInfo> Enumerations() {
  return kEnumerations;
}

}  // namespace ZQ7Standard::Automation
