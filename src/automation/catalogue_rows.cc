#include "automation/catalogue_rows.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ZQ7Standard::Automation {
namespace {

/// Converts `value`, which a row writes in the nearest C++ type, to the type `wanted`.
Value ToType(const Value& value, TypeInfo wanted, const CallContext& context) {
  if (std::holds_alternative<Omitted>(value)) return value;
  switch (wanted.type) {
    case Type::kByte:
      return ToValue(ToInteger<std::uint8_t>(value, {context}));
    case Type::kInteger:
      return ToInteger<std::int16_t>(value, {context});
    case Type::kSingle:
      return ToSingle(value, {context});
    case Type::kDouble:
      return ToDouble(value, {context});
    case Type::kDate:
      return ToDate(value, {context});
    case Type::kCurrency:
      return ToCurrency(value, {context});
    default:
      return value;
  }
}

Example ExampleOf(const ExampleRow& row, TypeInfo result, const CallContext& context) {
  Example example = {.before = row.before, .arguments = row.arguments, .result = Omitted{}};
  if (const auto* raises = std::get_if<Raises>(&row.outcome)) {
    example.error = raises->number;
  } else {
    example.result = ToType(std::get<Value>(row.outcome), result, context);
  }
  return example;
}

}  // namespace

ParameterRow Optional(const char* name, Value default_value) {
  ParameterRow row(name);
  row.optional = true;
  row.default_value = std::move(default_value);
  return row;
}

ParameterRow Nullable(ParameterRow parameter) {
  parameter.nullable = true;
  return parameter;
}

ParameterRow ByRef(ParameterRow parameter) {
  parameter.by_reference = true;
  return parameter;
}

OperationInfo DescribeOperation(int number, std::string_view name, Effect effect,
                                std::span<const ParameterRow> parameters,
                                std::span<const TypeInfo> types, TypeInfo result,
                                std::span<const ExampleRow> examples) {
  ServiceSet services(ExampleServices());
  const CallContext context = {name, {}, services};
  OperationInfo info = {.name = name, .number = number, .result = result, .effect = effect};
  for (std::size_t i = 0; i < types.size(); ++i) {
    const ParameterRow& row = parameters[i];
    info.parameters.push_back({.name = row.name,
                               .type = types[i],
                               .optional = row.optional,
                               .default_value = ToType(row.default_value, types[i], context),
                               .by_reference = row.by_reference,
                               .nullable = row.nullable || types[i].type == Type::kObject});
    if (row.enumeration != nullptr) info.parameters.back().type.enumeration = row.enumeration;
  }
  for (const ExampleRow& row : examples) {
    info.examples.push_back(ExampleOf(row, result, context));
  }
  return info;
}

std::vector<OperationRow> MayBlock(std::vector<OperationRow> operations) {
  for (OperationRow& operation : operations) operation.info.may_block = true;
  return operations;
}

PropertyRow MayBlock(PropertyRow property) {
  property.info.may_block = true;
  return property;
}

PropertyRow Outside(PropertyRow property) {
  property.info.effect = Effect::kOutside;
  return property;
}

void AddOperations(ClassRow& owner, std::vector<OperationRow> operations) {
  std::ranges::move(operations, std::back_inserter(owner.operations));
}

OleDate Date(int year, int month, int day, int hour, int minute) {
  return OleDate::FromParts(year, month, day, hour, minute);
}

}  // namespace ZQ7Standard::Automation
