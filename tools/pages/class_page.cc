#include <algorithm>
#include <span>
#include <string>
#include <vector>

#include "layout.h"
#include "markdown.h"
#include "signature.h"
#include "worked_example.h"
#include "writers.h"

namespace ZQ7Pages {
namespace {

using namespace ZQ7Standard::Automation;

constexpr std::size_t kWidth = 96;

/// Whether a word in backticks means a parameter of the operation, whatever else has its name.
bool IsParameter(std::span<const ParameterInfo> parameters, std::string_view word) {
  return std::ranges::find(parameters, word, &ParameterInfo::name) != parameters.end();
}

std::string AddressOfMember(const ClassInfo& owner, std::string_view word) {
  const MemberInfo found = FindMember(owner, word);
  if (found.operation != nullptr && found.operation->name == word) return Anchor(word);
  if (found.property != nullptr && found.property->name == word) return "#properties";
  const EventInfo* const event = FindEvent(owner, word);
  if (event != nullptr && event->name == word) return Anchor(word);
  return "";
}

std::string AddressOfEnumerator(std::string_view word) {
  for (const EnumerationInfo& enumeration : Enumerations()) {
    if (enumeration.name == word ||
        std::ranges::find(enumeration.members, word, &EnumeratorInfo::name) !=
            enumeration.members.end()) {
      return "enumerations.md" + Anchor(enumeration.name);
    }
  }
  return "";
}

/// The addresses of the words in the documentation of a class and of its member `self`.
Addresses AddressesFor(const ClassInfo& owner, std::string_view self = {},
                       std::span<const ParameterInfo> parameters = {}) {
  return [&owner, self, parameters](std::string_view word) -> std::string {
    if (word == self || word == owner.name || IsParameter(parameters, word)) return "";
    if (std::string member = AddressOfMember(owner, word); !member.empty()) return member;
    const ClassInfo* const other = FindClass(word);
    if (other != nullptr && other->name == word) return std::string(word) + ".md";
    return AddressOfEnumerator(word);
  };
}

std::string IfLeftOut(const ParameterInfo& parameter) {
  if (!parameter.optional) return "required";
  const std::string value = ZQ7Tool::Literal(parameter.default_value, parameter.type);
  return value.empty() ? "optional" : Code(value);
}

/// The parameters if one has a type to link or accepts null; else the signature says it all, as the
/// text says what they mean.
std::string ParameterTable(const OperationInfo& operation) {
  std::string rows;
  bool more = false;
  for (const ParameterInfo& parameter : operation.parameters) {
    const std::string type = TypeLink(parameter.type) + (parameter.nullable ? " or null" : "");
    more |= type != ZQ7Tool::TypeName(parameter.type);
    rows += Row({Code(parameter.name), type, IfLeftOut(parameter)});
  }
  return Table({"Parameter", "Type", "If left out"}, more ? rows : "");
}

std::string ExampleTable(const ClassInfo& owner, const OperationInfo& operation) {
  std::string rows;
  for (const Example& example : operation.examples) {
    rows += Row({Code(ExampleCalls(owner, operation, example)), ExampleResult(operation, example)});
  }
  return Table({"Example", "Result"}, rows);
}

std::string Declaration(std::string_view name, const std::vector<ParameterInfo>& parameters,
                        const TypeInfo& result = {}) {
  return "\n```text\n" +
         ZQ7Tool::Filled("", ZQ7Tool::Signature(name, parameters, result), 4, kWidth) + "```\n";
}

std::string WaitLine(bool may_block) {
  return may_block ? "\nIt [may wait](README.md#operations-that-may-wait).\n" : "";
}

std::string Operation(const ClassInfo& owner, const OperationInfo& operation) {
  const Addresses addresses = AddressesFor(owner, operation.name, operation.parameters);
  return "\n### " + std::string(operation.name) + "\n" + Block(Prose(operation.help, addresses)) +
         Declaration(operation.name, operation.parameters, operation.result) +
         Block(Prose(operation.details, addresses)) + WaitLine(operation.may_block) +
         ParameterTable(operation) + ExampleTable(owner, operation);
}

bool BeginsSubject(const ClassInfo& owner, const OperationInfo& operation) {
  const OperationInfo* const self = &operation;
  return self == owner.operations.data() || self->subject != self[-1].subject;
}

/// The subjects of a class that has several.
std::string Contents(const ClassInfo& owner) {
  std::string lines;
  int subjects = 0;
  for (const OperationInfo& operation : owner.operations) {
    if (!BeginsSubject(owner, operation)) continue;
    lines += "- " + Link(Prose(operation.subject), Anchor(operation.subject)) + "\n";
    ++subjects;
  }
  return subjects > 1 ? "\n" + lines : "";
}

std::string OperationSections(const ClassInfo& owner) {
  std::string sections;
  for (const OperationInfo& operation : owner.operations) {
    if (BeginsSubject(owner, operation)) {
      sections +=
          "\n## " + (operation.subject.empty() ? "Operations" : Prose(operation.subject)) + "\n";
    }
    sections += Operation(owner, operation);
  }
  return sections;
}

std::string Access(const PropertyInfo& property) {
  return std::string(property.readable ? "read" : "") +
         (property.readable && property.writable ? ", " : "") + (property.writable ? "write" : "");
}

std::string PropertySection(const ClassInfo& owner) {
  std::string rows;
  std::string texts;
  for (const PropertyInfo& property : owner.properties) {
    const Addresses addresses = AddressesFor(owner, property.name);
    const std::string wait =
        property.may_block ? " Setting it [may wait](README.md#operations-that-may-wait)." : "";
    rows += Row({Code(property.name), TypeLink(property.type), Access(property),
                 Prose(property.help, addresses) + wait});
    if (property.details.empty()) continue;
    texts +=
        "\n### " + std::string(property.name) + "\n" + Block(Prose(property.details, addresses));
  }
  if (rows.empty()) return "";
  return "\n## Properties\n" + Table({"Property", "Type", "Access", ""}, rows) + texts;
}

std::string EventSection(const ClassInfo& owner) {
  std::string sections;
  for (const EventInfo& event : owner.events) {
    const Addresses addresses = AddressesFor(owner, event.name, event.parameters);
    sections += "\n### " + std::string(event.name) + "\n" + Block(Prose(event.help, addresses)) +
                Declaration(event.name, event.parameters) + Block(Prose(event.details, addresses));
  }
  return sections.empty() ? "" : "\n## Events\n" + sections;
}

std::string Making(const ClassInfo& owner) {
  if (!owner.creatable) return "A host makes it and passes it in; calls by name cannot make one.";
  return "By name: `Create(\"" + std::string(owner.name) + "\")`.";
}

}  // namespace

Fields ClassFields(const ClassInfo& owner) {
  const Addresses addresses = AddressesFor(owner);
  return {{"NAME", std::string(owner.name)},
          {"HELP", Block(Prose(owner.help, addresses))},
          {"DETAILS", Block(Prose(owner.details, addresses))},
          {"MAKING", Making(owner)},
          {"MEMBERS", Contents(owner) + PropertySection(owner) + OperationSections(owner) +
                          EventSection(owner)}};
}

}  // namespace ZQ7Pages
