#include "fill/explain.h"

#include <ZQ7Standard/platform/date_convention.h>

#include <algorithm>

#include "iso_date.h"
#include "names.h"
#include "signature.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

std::string ConventionName(DateConvention convention) {
  const auto conventions = DateConventions();
  return std::string(
      std::ranges::find(conventions, convention, &NamedDateConvention::convention)->name);
}

std::string DateRule(Dates dates, DateConvention convention) {
  std::string typed = "typed as " + ConventionName(convention);
  switch (dates) {
    case Dates::kIso:
      return "as 2024-01-31, Gregorian";
    case Dates::kTyped:
      return typed;
    case Dates::kAsTyped:
      break;
  }
  return typed + "; with the year first the row fails";
}

std::string CellSource(const PlannedArgument& argument, const TypeInfo& type) {
  const std::string place = "column " + std::to_string(argument.index + 1) + ", ";
  if (type.type == Type::kText) return place + Quoted(argument.column) + ", as it is";
  return place + Quoted(argument.column) + ", read as " + TypeName(type);
}

/// Adds the lines of a call, and of those that its arguments need, below their parameters.
class Explainer {
 public:
  explicit Explainer(const Plan& plan) : plan_(plan) {}

  void Add(const std::string& before, std::size_t index, std::size_t indent) {
    const PlannedCall& call = plan_.calls[index];
    lines_ += before + QualifiedName(*call.owner, call.operation->name) + ", " +
              TypeName(call.operation->result) + "\n";
    for (std::size_t i = 0; i < call.arguments.size(); ++i) {
      AddArgument(call.operation->parameters[i], call.arguments[i], indent + 2);
    }
  }

  const std::string& Lines() const { return lines_; }

 private:
  void AddArgument(const ParameterInfo& parameter, const PlannedArgument& argument,
                   std::size_t indent) {
    const std::string before = std::string(indent, ' ') + std::string(parameter.name) + " <- ";
    if (argument.source == Source::kResult && argument.column.empty()) {
      return Add(before, argument.index, indent);
    }
    lines_ += before + SourceOf(parameter, argument) + "\n";
  }

  static std::string SourceOf(const ParameterInfo& parameter, const PlannedArgument& argument) {
    switch (argument.source) {
      case Source::kCell:
        return CellSource(argument, parameter.type);
      case Source::kResult:
        return "new column " + Quoted(argument.column);
      case Source::kConstant:
        return Literal(argument.constant, parameter.type);
      case Source::kDefault:
        break;
    }
    const std::string value = Literal(parameter.default_value, parameter.type);
    return value.empty() ? "left out" : value + ", the default";
  }

  const Plan& plan_;
  std::string lines_;
};

}  // namespace

std::string Explanation(const Plan& plan, const CellRules& rules, DateConvention convention) {
  Explainer explainer(plan);
  for (const PlannedColumn& column : plan.columns)
    explainer.Add(column.name + " = ", column.call, 0);
  return explainer.Lines() + "Dates in cells: " + DateRule(rules.dates, convention) +
         ". Dates are written as 2024-01-31.\n";
}

}  // namespace ZQ7Tool
