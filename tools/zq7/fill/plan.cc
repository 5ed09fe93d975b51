#include "fill/plan.h"

#include <ZQ7Standard/automation/tables.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "enumerators.h"
#include "members.h"
#include "names.h"
#include "signature.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

bool IsForTables(const OperationInfo& operation) {
  static const std::vector<TableOperation> operations = TableOperations();
  return std::ranges::find(operations, &operation, &TableOperation::operation) != operations.end();
}

/// Why rows may not call an operation; empty if they may.
std::string_view Objection(const OperationInfo& operation) {
  if (!IsForTables(operation)) {
    const bool random = operation.effect == Effect::kRandom;
    return random ? "it draws random numbers" : "it reaches outside the program";
  }
  if (operation.result.type == Type::kNothing) return "it has no result";
  if (operation.result.type == Type::kObject) return "its result is an object";
  return {};
}

struct Range {
  double lowest;
  double highest;
};

template <typename Integer>
constexpr Range kRangeOf = {std::numeric_limits<Integer>::lowest(),
                            std::numeric_limits<Integer>::max()};

/// The whole numbers of a type; nullopt for other types.
std::optional<Range> WholeNumbersOf(Type type) {
  switch (type) {
    case Type::kByte:
      return kRangeOf<std::uint8_t>;
    case Type::kInteger:
      return kRangeOf<std::int16_t>;
    case Type::kLong:
      return kRangeOf<std::int32_t>;
    default:
      return std::nullopt;
  }
}

/// Plans the calls of one new column.
class ColumnPlanner {
 public:
  ColumnPlanner(const ColumnExpression& column, Plan& plan) : column_(column), plan_(plan) {}

  void CheckName() const {
    if (column_.name.empty()) Refuse(0, "A new column needs a name.");
    const auto is_taken = [&](const PlannedColumn& other) { return other.name == column_.name; };
    if (CountInHeader(column_.name) > 0 || std::ranges::any_of(plan_.columns, is_taken)) {
      Refuse(0, "There is already a column " + Quoted(column_.name) + ".");
    }
  }

  /// Adds a call after those that its arguments need; returns its index.
  std::size_t AddCall(const Expression& call) {
    const Member member = OperationOf(call);
    const OperationInfo& operation = *member.operation;
    PlannedCall planned = {member.owner, member.operation,
                           std::vector<PlannedArgument>(operation.parameters.size())};
    std::vector<bool> given(operation.parameters.size());
    bool named = false;
    for (std::size_t i = 0; i < call.arguments.size(); ++i) {
      const Expression& argument = call.arguments[i];
      if (named && argument.parameter.empty()) {
        Refuse(argument.argument_place, "Arguments by position go before those by name.");
      }
      named = named || !argument.parameter.empty();
      const std::size_t place = named ? PlaceOf(argument, member) : PlaceAt(i, argument, member);
      if (given[place])
        Refuse(argument.argument_place, Parameter(member, place) + " is given twice.");
      given[place] = true;
      planned.arguments[place] = ValueFor(argument, operation.parameters[place]);
    }
    CheckNoneIsMissing(call, member, given);
    plan_.calls.push_back(std::move(planned));
    return plan_.calls.size() - 1;
  }

 private:
  [[noreturn]] void Refuse(std::size_t place, std::string_view message) const {
    throw WrongExpression(column_.source, place, message);
  }

  std::ptrdiff_t CountInHeader(std::string_view name) const {
    return std::ranges::count(plan_.header, name);
  }

  Member NamedBy(const Expression& call) const {
    try {
      return MemberNamed(call.text);
    } catch (const WrongUse& mistake) {
      Refuse(call.place, mistake.what());
    }
  }

  Member OperationOf(const Expression& call) const {
    const Member member = NamedBy(call);
    if (member.operation == nullptr) {
      Refuse(call.place, Quoted(call.text) + " is not an operation.");
    }
    if (const auto objection = Objection(*member.operation); !objection.empty()) {
      Refuse(call.place, QualifiedName(*member.owner, member.operation->name) +
                             " cannot be called for rows: " + std::string(objection) + ".");
    }
    return member;
  }

  static std::string Parameter(const Member& member, std::size_t place) {
    return std::string(member.operation->parameters[place].name);
  }

  static std::string Usage(const Member& member) {
    return "\nusage: " + SignatureLine(*member.owner, *member.operation);
  }

  std::size_t PlaceAt(std::size_t index, const Expression& argument, const Member& member) const {
    const std::size_t count = member.operation->parameters.size();
    if (index < count) return index;
    Refuse(argument.argument_place, std::string(member.operation->name) + " takes at most " +
                                        std::to_string(count) + " arguments." + Usage(member));
  }

  std::size_t PlaceOf(const Expression& argument, const Member& member) const {
    std::vector<std::string> names;
    for (const ParameterInfo& parameter : member.operation->parameters) {
      if (SameName(parameter.name, argument.parameter)) return names.size();
      names.emplace_back(parameter.name);
    }
    Refuse(argument.argument_place, Quoted(argument.parameter) + " is not a parameter of " +
                                        std::string(member.operation->name) + "." +
                                        Hint(argument.parameter, names));
  }

  void CheckNoneIsMissing(const Expression& call, const Member& member,
                          const std::vector<bool>& given) const {
    for (std::size_t i = 0; i < given.size(); ++i) {
      if (given[i] || member.operation->parameters[i].optional) continue;
      Refuse(call.place, std::string(member.operation->name) + " also needs " +
                             Parameter(member, i) + "." + Usage(member));
    }
  }

  PlannedArgument ValueFor(const Expression& value, const ParameterInfo& parameter) {
    switch (value.kind) {
      case Expression::Kind::kText:
        return TextFor(value, parameter);
      case Expression::Kind::kNumber:
        return NumberFor(value, parameter);
      case Expression::Kind::kDate:
        RefuseUnless(TakesScalars(parameter), value, parameter, "a date");
        return {Source::kConstant, value.date};
      case Expression::Kind::kCall: {
        const std::size_t call = AddCall(value);
        return ResultFor(call, value, parameter);
      }
      case Expression::Kind::kColumn:
        return ColumnFor(value, parameter);
      case Expression::Kind::kWord:
        break;
    }
    return WordFor(value, parameter);
  }

  static bool TakesScalars(const ParameterInfo& parameter) {
    return parameter.type.type != Type::kTextList && parameter.type.type != Type::kObject;
  }

  void RefuseUnless(bool allowed, const Expression& value, const ParameterInfo& parameter,
                    std::string_view what) const {
    if (allowed) return;
    Refuse(value.place, std::string(parameter.name) + " takes a value of type " +
                            TypeName(parameter.type) + ", not " + std::string(what) + ".");
  }

  PlannedArgument TextFor(const Expression& value, const ParameterInfo& parameter) const {
    RefuseUnless(parameter.type.type == Type::kText, value, parameter, "a text in quotes");
    return {Source::kConstant, FromUtf8(value.text)};
  }

  PlannedArgument NumberFor(const Expression& value, const ParameterInfo& parameter) const {
    // As it is typed: 007 keeps its zeros.
    if (parameter.type.type == Type::kText) return {Source::kConstant, FromUtf8(value.text)};
    RefuseUnless(TakesScalars(parameter), value, parameter, "a number");
    const auto range = WholeNumbersOf(parameter.type.type);
    const double whole = std::nearbyint(value.number);
    if (range && (whole < range->lowest || whole > range->highest)) {
      Refuse(value.place, std::string(parameter.name) + " is a " + TypeName(parameter.type) +
                              ", which " + value.text + " does not fit.");
    }
    return {Source::kConstant, value.number};
  }

  PlannedArgument ResultFor(std::size_t call, const Expression& value,
                            const ParameterInfo& parameter, std::string column = {}) const {
    const TypeInfo& type = plan_.calls[call].operation->result;
    const bool list = type.type == Type::kTextList;
    RefuseUnless(list ? parameter.type.type == Type::kTextList : TakesScalars(parameter), value,
                 parameter, "a " + TypeName(type));
    return {Source::kResult, {}, call, std::move(column)};
  }

  PlannedArgument WordFor(const Expression& value, const ParameterInfo& parameter) const {
    const EnumerationInfo* const enumeration = parameter.type.enumeration;
    if (enumeration != nullptr) {
      if (const auto member = ValueOfEnumerator(*enumeration, value.text)) {
        return {Source::kConstant, *member};
      }
    }
    const bool yes = SameName(value.text, "True");
    if (yes || SameName(value.text, "False")) {
      RefuseUnless(TakesScalars(parameter), value, parameter, "True or False");
      return {Source::kConstant, yes};
    }
    return ColumnFor(value, parameter);
  }

  PlannedArgument ColumnFor(const Expression& value, const ParameterInfo& parameter) const {
    for (const PlannedColumn& column : plan_.columns) {
      if (column.name == value.text) return ResultFor(column.call, value, parameter, column.name);
    }
    const auto found = std::ranges::find(plan_.header, value.text);
    if (found == plan_.header.end()) RefuseColumn(value, parameter);
    if (CountInHeader(value.text) > 1) {
      Refuse(value.place, "The file has several columns " + Quoted(value.text) + ".");
    }
    RefuseUnless(TakesScalars(parameter), value, parameter, "a cell");
    const auto index = static_cast<std::size_t>(found - plan_.header.begin());
    return {Source::kCell, {}, index, value.text};
  }

  [[noreturn]] void RefuseColumn(const Expression& value, const ParameterInfo& parameter) const {
    const EnumerationInfo* const enumeration = parameter.type.enumeration;
    std::vector<std::string> names = plan_.header;
    for (const PlannedColumn& column : plan_.columns) names.push_back(column.name);
    std::string hint = Hint(value.text, names);
    std::string what = "There is no column " + Quoted(value.text);
    if (enumeration != nullptr) {
      what += " and no such member of " + std::string(enumeration->name);
      if (hint.empty()) hint = EnumeratorHint(*enumeration, value.text);
    }
    Refuse(value.place, what + "." + hint);
  }

  const ColumnExpression& column_;
  Plan& plan_;
};

}  // namespace

Plan PlanColumns(const std::vector<std::string>& header,
                 const std::vector<ColumnExpression>& columns) {
  Plan plan = {.header = header, .calls = {}, .columns = {}};
  for (const ColumnExpression& column : columns) {
    ColumnPlanner planner(column, plan);
    planner.CheckName();
    const std::size_t call = planner.AddCall(column.call);
    plan.columns.push_back({column.name, call});
  }
  return plan;
}

}  // namespace ZQ7Tool
