#include "catalogue.h"

#include <ZQ7Standard/automation/catalogue.h>

#include <array>
#include <cstddef>
#include <string>

#include "values.h"

namespace ZQ7Python {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

/// By the number of the type.
constexpr std::array<std::string_view, 12> kTypeNames = {
    "Nothing", "Text",    "Byte", "Integer",  "Long",     "Single",
    "Double",  "Boolean", "Date", "Currency", "TextList", "Object"};

py::str TypeName(const TypeInfo& type) {
  if (type.enumeration != nullptr) return Str(type.enumeration->name);
  if (!type.object_class.empty()) return Str(type.object_class);
  return Str(kTypeNames.at(static_cast<std::size_t>(type.type)));
}

/// The help and the details, as one text.
py::str Documentation(const auto& info) {
  std::string text(info.help);
  if (!info.details.empty()) text.append("\n\n").append(info.details);
  return Str(text);
}

template <typename Rows, typename Convert>
py::list ListOf(const Rows& rows, const Convert& convert) {
  py::list list;
  for (const auto& row : rows) list.append(convert(row));
  return list;
}

/// A value of an example; "..." for an argument that is left out.
py::object Argument(const Value& value) {
  if (std::holds_alternative<Omitted>(value)) return py::ellipsis();
  return ValueToPython(value, {});
}

py::dict Parameter(const ParameterInfo& info) {
  using namespace py::literals;
  py::dict row("name"_a = Str(info.name), "type"_a = TypeName(info.type),
               "optional"_a = info.optional, "nullable"_a = info.nullable,
               "help"_a = Str(info.help));
  if (info.optional && !std::holds_alternative<Omitted>(info.default_value)) {
    row["default"] = ValueToPython(info.default_value, info.type);
  }
  return row;
}

py::object Operation(const OperationInfo& info) {
  using namespace py::literals;
  return py::dict("name"_a = Str(info.name), "parameters"_a = ListOf(info.parameters, Parameter),
                  "result"_a = TypeName(info.result), "may_block"_a = info.may_block,
                  "documentation"_a = Documentation(info),
                  "examples"_a = ListOf(info.examples, [](const Example& row) {
                    return py::dict("before"_a = ListOf(row.before,
                                                        [](const Call& call) {
                                                          return py::make_tuple(
                                                              Str(call.operation),
                                                              ListOf(call.arguments, Argument));
                                                        }),
                                    "arguments"_a = ListOf(row.arguments, Argument),
                                    "result"_a = ValueToPython(row.result, {}),
                                    "error"_a = row.error);
                  }));
}

py::object Property(const PropertyInfo& info) {
  using namespace py::literals;
  return py::dict("name"_a = Str(info.name), "type"_a = TypeName(info.type),
                  "readable"_a = info.readable, "writable"_a = info.writable,
                  "documentation"_a = Documentation(info));
}

py::object Event(const EventInfo& info) {
  using namespace py::literals;
  return py::dict("name"_a = Str(info.name), "parameters"_a = ListOf(info.parameters, Parameter),
                  "documentation"_a = Documentation(info));
}

}  // namespace

py::list ClassesToPython() {
  using namespace py::literals;
  return ListOf(Classes(), [](const ClassInfo& info) {
    return py::dict("name"_a = Str(info.name), "documentation"_a = Documentation(info),
                    "creatable"_a = info.creatable,
                    "operations"_a = ListOf(info.operations, Operation),
                    "properties"_a = ListOf(info.properties, Property),
                    "events"_a = ListOf(info.events, Event));
  });
}

py::list EnumerationsToPython() {
  return ListOf(Enumerations(), [](const EnumerationInfo& info) {
    py::object found = EnumerationClass(info);
    std::string text(py::str(Documentation(info)));
    for (const EnumeratorInfo& member : info.members) {
      if (member.help.empty()) continue;
      text.append("\n").append(member.name).append(": ").append(member.help);
    }
    found.attr("__doc__") = text;
    return found;
  });
}

}  // namespace ZQ7Python
