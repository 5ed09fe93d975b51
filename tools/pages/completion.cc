#include <ZQ7Standard/automation/catalogue.h>

#include <set>
#include <string_view>
#include <vector>

#include "commands.h"
#include "names.h"
#include "writers.h"

namespace ZQ7Pages {
namespace {

using namespace ZQ7Standard::Automation;
using namespace ZQ7Tool;

std::string Lines(const std::vector<std::string>& words) {
  std::string lines = "\n";
  for (const std::string& word : words) lines.append("  ").append(word).append("\n");
  return lines;
}

/// The `case` lines of operations with enumeration parameters.
std::string MemberCases() {
  std::string cases;
  for (const ClassInfo& owner : Classes()) {
    for (const OperationInfo& operation : owner.operations) {
      std::set<std::string> members;
      for (const ParameterInfo& parameter : operation.parameters) {
        if (parameter.type.enumeration == nullptr) continue;
        for (const auto& member : parameter.type.enumeration->members) members.emplace(member.name);
      }
      if (members.empty()) continue;
      std::string pattern = QualifiedName(owner, operation.name);
      for (char& c : pattern) c = Lower(c);
      cases += "    " + pattern + ") echo";
      for (const std::string& member : members) cases += " " + member;
      cases += " ;;\n";
    }
  }
  return cases;
}

/// The options of the tool, or those that a subcommand has besides.
std::vector<std::string> OptionNames(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::Option* option : app.get_options()) {
    const bool again = app.get_parent() != nullptr && option == app.get_help_ptr();
    if (!option->get_positional() && !again) names.push_back(option->get_name());
  }
  return names;
}

}  // namespace

Fields CompletionFields() {
  const Commands commands;
  std::vector<std::string> subcommands;
  std::vector<std::string> classes;
  std::vector<std::string> operations;
  std::vector<std::string> others;
  for (const CLI::App* subcommand : commands.App().get_subcommands({})) {
    subcommands.push_back(subcommand->get_name());
  }
  for (const ClassInfo& owner : Classes()) {
    classes.emplace_back(owner.name);
    for (const auto& entry : owner.operations)
      operations.push_back(QualifiedName(owner, entry.name));
    for (const auto& entry : owner.properties) others.push_back(QualifiedName(owner, entry.name));
    for (const auto& entry : owner.events) others.push_back(QualifiedName(owner, entry.name));
  }
  return {{"OPTIONS", Lines(OptionNames(commands.App()))},
          {"FILL_OPTIONS", Lines(OptionNames(*commands.App().get_subcommand("fill")))},
          {"SUBCOMMANDS", Lines(subcommands)},
          {"CLASSES", Lines(classes)},
          {"OPERATIONS", Lines(operations)},
          {"OTHERS", Lines(others)},
          {"MEMBERS", MemberCases()}};
}

}  // namespace ZQ7Pages
