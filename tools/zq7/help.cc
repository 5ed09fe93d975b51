#include "help.h"

#include <algorithm>
#include <vector>

#include "examples.h"
#include "layout.h"
#include "members.h"
#include "signature.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard::Automation;

constexpr std::size_t kIndent = 2;

std::string Joined(const std::vector<std::string>& pieces) {
  std::string text;
  for (const std::string& piece : pieces) text.append(text.empty() ? "" : " ").append(piece);
  return text;
}

std::string Section(std::string_view title, const std::string& lines) {
  if (lines.empty()) return "";
  return std::string("\n").append(title).append("\n").append(lines);
}

/// What a property can be used for, if not both.
std::string_view Access(const PropertyInfo& property) {
  if (!property.writable) return ", read-only";
  return !property.readable ? ", write-only" : "";
}

std::string PropertyRows(const ClassInfo& owner, std::size_t width) {
  std::vector<Row> rows;
  for (const PropertyInfo& property : owner.properties) {
    rows.push_back(
        {std::string(property.name) + " As " + TypeName(property.type).append(Access(property)),
         std::string(property.help)});
  }
  return Columns(rows, kIndent, width);
}

std::string EventRows(const ClassInfo& owner, std::size_t width) {
  std::vector<Row> rows;
  for (const EventInfo& event : owner.events) {
    rows.push_back({Joined(Signature(event.name, event.parameters)), std::string(event.help)});
  }
  return Columns(rows, kIndent, width);
}

/// The operations grouped by subject.
std::string OperationSections(const ClassInfo& owner, std::size_t width) {
  std::string sections;
  std::vector<Row> rows;
  std::string_view subject;
  const auto finish = [&] {
    sections += Section(subject.empty() ? "Operations" : subject, Columns(rows, kIndent, width));
    rows.clear();
  };
  for (const OperationInfo& operation : owner.operations) {
    if (operation.subject != subject) finish();
    subject = operation.subject;
    rows.push_back({std::string(operation.name), std::string(operation.help)});
  }
  finish();
  return sections;
}

std::string ParameterText(const ParameterInfo& parameter) {
  std::string text = TypeName(parameter.type);
  const std::string default_value = Literal(parameter.default_value, parameter.type);
  if (parameter.optional && default_value.empty()) text += ", may be left out";
  if (!default_value.empty()) text += ", " + default_value + " when left out";
  if (parameter.by_reference) text += ", by reference";
  return text;
}

std::string ParameterRows(const std::vector<ParameterInfo>& parameters, std::size_t width) {
  std::vector<Row> rows;
  rows.reserve(parameters.size());
  for (const ParameterInfo& parameter : parameters) {
    rows.push_back({std::string(parameter.name), ParameterText(parameter)});
  }
  return Columns(rows, kIndent, width);
}

std::string EnumeratorRows(const EnumerationInfo& enumeration, std::size_t width) {
  std::vector<Row> rows;
  rows.reserve(enumeration.members.size());
  for (const EnumeratorInfo& member : enumeration.members) {
    rows.push_back({std::string(member.name), std::to_string(member.value)});
  }
  return Columns(rows, kIndent, width);
}

/// The members of each enumeration that an operation takes or returns.
std::string EnumerationSections(const OperationInfo& operation, std::size_t width) {
  std::vector<const EnumerationInfo*> enumerations;
  const auto add = [&](const TypeInfo& type) {
    const bool known = std::ranges::find(enumerations, type.enumeration) != enumerations.end();
    if (type.enumeration != nullptr && !known) enumerations.push_back(type.enumeration);
  };
  for (const ParameterInfo& parameter : operation.parameters) add(parameter.type);
  add(operation.result);
  std::string sections;
  for (const EnumerationInfo* enumeration : enumerations) {
    sections += Section(enumeration->name, EnumeratorRows(*enumeration, width));
  }
  return sections;
}

/// The name with its one-line help, the declaration, and the details.
std::string Documentation(const std::string& name, std::string_view help,
                          const std::string& declaration, std::string_view details,
                          std::size_t width) {
  const std::string text = Paragraphs(details, width);
  return Wrapped(name + ": ", help, kIndent, width) + "\n" + declaration +
         (text.empty() ? "" : "\n" + text);
}

std::string Declaration(const std::string& name, const std::vector<ParameterInfo>& parameters,
                        const TypeInfo& result, std::size_t width) {
  return Filled(std::string(kIndent, ' '), Signature(name, parameters, result), 3 * kIndent, width);
}

std::string OperationHelp(const std::string& name, const ClassInfo& owner,
                          const OperationInfo& operation, std::size_t width) {
  const std::string declaration = Declaration(name, operation.parameters, operation.result, width);
  const std::string result = TypeName(operation.result);
  return Documentation(name, operation.help, declaration, operation.details, width) +
         Section("Parameters", ParameterRows(operation.parameters, width)) +
         Section("Result", result.empty() ? "" : std::string(kIndent, ' ') + result + "\n") +
         EnumerationSections(operation, width) +
         Section("Examples, on 2024-01-15 09:30, dates typed day first in the Buddhist Era",
                 ExampleLines(owner, operation));
}

std::string PropertyHelp(const std::string& name, const PropertyInfo& property, std::size_t width) {
  const std::string declaration = std::string(kIndent, ' ') + name + " As " +
                                  TypeName(property.type).append(Access(property)) + "\n";
  return Documentation(name, property.help, declaration, property.details, width);
}

std::string EventHelp(const std::string& name, const EventInfo& event, std::size_t width) {
  return Documentation(name, event.help, Declaration(name, event.parameters, {}, width),
                       event.details, width);
}

std::string ClassHelp(const ClassInfo& owner, std::size_t width) {
  return ClassLine(owner, width) + "\n" + Paragraphs(owner.details, width) +
         MemberList(owner, width);
}

}  // namespace

std::string ClassList(std::size_t width) {
  std::vector<Row> rows;
  for (const ClassInfo& owner : Classes()) {
    rows.push_back({std::string(owner.name), std::string(owner.help)});
  }
  return Columns(rows, 0, width);
}

std::string ClassLine(const ClassInfo& owner, std::size_t width) {
  return Wrapped(std::string(owner.name) + ": ", owner.help, kIndent, width);
}

std::string MemberList(const ClassInfo& owner, std::size_t width) {
  return Section("Properties", PropertyRows(owner, width)) + OperationSections(owner, width) +
         Section("Events", EventRows(owner, width));
}

std::string Help(std::string_view name, std::size_t width) {
  const Member member = MemberNamed(name);
  const ClassInfo& owner = *member.owner;
  const auto qualified = [&](std::string_view member_name) {
    return std::string(owner.name).append(".").append(member_name);
  };
  if (const auto* operation = member.operation) {
    return OperationHelp(qualified(operation->name), owner, *operation, width);
  }
  if (const auto* property = member.property) {
    return PropertyHelp(qualified(property->name), *property, width);
  }
  if (member.event != nullptr)
    return EventHelp(qualified(member.event->name), *member.event, width);
  return ClassHelp(owner, width);
}

}  // namespace ZQ7Tool
