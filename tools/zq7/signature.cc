#include "signature.h"

#include <algorithm>

#include "plain_text.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard::Automation;

std::string_view PlainTypeName(Type type) {
  switch (type) {
    case Type::kNothing:
      return "";
    case Type::kText:
      return "Text";
    case Type::kByte:
      return "Byte";
    case Type::kInteger:
      return "Integer";
    case Type::kLong:
      return "Long";
    case Type::kSingle:
      return "Single";
    case Type::kDouble:
      return "Double";
    case Type::kBoolean:
      return "Boolean";
    case Type::kDate:
      return "Date";
    case Type::kCurrency:
      return "Currency";
    case Type::kTextList:
      return "TextList";
    case Type::kObject:
      return "Object";
  }
  return "";
}

std::string Declared(const ParameterInfo& parameter) {
  std::string text = std::string(parameter.name) + " As " + TypeName(parameter.type);
  if (!parameter.optional) return text;
  if (!std::holds_alternative<Omitted>(parameter.default_value)) {
    text += " = " + Literal(parameter.default_value, parameter.type);
  }
  return "[" + text + "]";
}

}  // namespace

std::string TypeName(const TypeInfo& type) {
  if (type.enumeration != nullptr) return std::string(type.enumeration->name);
  if (!type.object_class.empty()) return std::string(type.object_class);
  return std::string(PlainTypeName(type.type));
}

std::string Literal(const Value& value, const TypeInfo& type) {
  if (std::holds_alternative<ZQ7Standard::Text>(value)) return '"' + PlainText(value) + '"';
  const auto* number = std::get_if<std::int32_t>(&value);
  if (number != nullptr && type.enumeration != nullptr) {
    const auto& members = type.enumeration->members;
    const auto member = std::ranges::find(members, *number, &EnumeratorInfo::value);
    if (member != members.end()) return std::string(member->name);
  }
  return PlainText(value);
}

std::vector<std::string> Signature(std::string_view name,
                                   const std::vector<ParameterInfo>& parameters,
                                   const TypeInfo& result) {
  std::vector<std::string> pieces;
  std::string piece = std::string(name) + "(";
  for (const ParameterInfo& parameter : parameters) {
    if (&parameter != parameters.data()) {
      pieces.push_back(piece + ",");
      piece.clear();
    }
    piece += Declared(parameter);
  }
  pieces.push_back(piece + ")");
  if (result.type != Type::kNothing) pieces.push_back("As " + TypeName(result));
  return pieces;
}

std::string SignatureLine(const ClassInfo& owner, const OperationInfo& operation) {
  std::string line;
  for (const std::string& piece :
       Signature(QualifiedName(owner, operation.name), operation.parameters, operation.result)) {
    line.append(line.empty() ? "" : " ").append(piece);
  }
  return line;
}

}  // namespace ZQ7Tool
