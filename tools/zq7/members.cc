#include "members.h"

#include <algorithm>
#include <string>
#include <vector>

#include "names.h"
#include "wrong_use.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard::Automation;

std::string ClassHint(std::string_view name) {
  std::vector<std::string> names;
  for (const ClassInfo& owner : Classes()) {
    // The name of an operation without its class.
    if (const auto* operation = FindOperation(owner, name)) {
      return " Did you mean " + QualifiedName(owner, operation->name) + "?";
    }
    names.emplace_back(owner.name);
  }
  const std::string hint = Hint(name, names);
  return hint.empty() ? R"( "zq7 list" shows the classes.)" : hint;
}

std::string MemberHint(const ClassInfo& owner, std::string_view name) {
  std::vector<std::string> names;
  for (const auto& operation : owner.operations) names.emplace_back(operation.name);
  for (const auto& property : owner.properties) names.emplace_back(property.name);
  for (const auto& event : owner.events) names.emplace_back(event.name);
  const std::string hint = Hint(name, names);
  const std::string list = "zq7 list " + std::string(owner.name);
  return hint.empty() ? " " + Quoted(list) + " shows its members." : hint;
}

}  // namespace

Member MemberNamed(std::string_view name) {
  const std::size_t point = std::min(name.find('.'), name.size());
  const std::string class_name(name.substr(0, point));
  Member found = {.owner = FindClass(class_name)};
  if (found.owner == nullptr) {
    throw WrongUse("There is no class " + Quoted(class_name) + "." + ClassHint(class_name));
  }
  if (point == name.size()) return found;
  const std::string_view member = name.substr(point + 1);
  const MemberInfo info = FindMember(*found.owner, member);
  found.operation = info.operation;
  found.property = info.property;
  found.event = FindEvent(*found.owner, member);
  if (found.operation == nullptr && found.property == nullptr && found.event == nullptr) {
    throw WrongUse("There is no " + Quoted(QualifiedName(*found.owner, member)) + "." +
                   MemberHint(*found.owner, member));
  }
  return found;
}

}  // namespace ZQ7Tool
