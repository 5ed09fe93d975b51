#include "markdown.h"
#include "writers.h"

namespace ZQ7Pages {
namespace {

using namespace ZQ7Standard::Automation;

std::string Section(const EnumerationInfo& enumeration) {
  std::string rows;
  for (const EnumeratorInfo& member : enumeration.members) {
    rows += Row({Code(member.name), std::to_string(member.value), Prose(member.help)});
  }
  return "\n## " + std::string(enumeration.name) + "\n" + Block(Prose(enumeration.help)) +
         Block(Prose(enumeration.details)) + Table({"Member", "Value", ""}, rows);
}

}  // namespace

Fields EnumerationsFields() {
  std::string sections;
  for (const EnumerationInfo& enumeration : Enumerations()) sections += Section(enumeration);
  return {{"ENUMERATIONS", sections}};
}

}  // namespace ZQ7Pages
