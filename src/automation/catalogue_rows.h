#ifndef ZQ7STANDARD_SRC_AUTOMATION_CATALOGUE_ROWS_H_
#define ZQ7STANDARD_SRC_AUTOMATION_CATALOGUE_ROWS_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <array>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <span>
#include <string_view>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

#include "automation/binding.h"
#include "automation/entry.h"

/// How catalogue rows are written: they hold names, numbers and examples; types come from the
/// member itself and documentation from the headers.
namespace ZQ7Standard::Automation {

/// A parameter in a row.
struct ParameterRow {
  // A bare name in a row is a required parameter.
  ParameterRow(const char* parameter) : name(parameter) {}  // NOLINT(google-explicit-constructor)

  std::string_view name;
  bool optional = false;
  Value default_value = Omitted{};
  bool by_reference = false;
  bool nullable = false;
  const EnumerationInfo* enumeration = nullptr;
};

/// A 32-bit number for which hosts offer the members of an enumeration.
template <EnumerationType Enumeration>
ParameterRow MemberOf(const char* name) {
  ParameterRow row(name);
  row.enumeration = FindEnumeration(kEnumerationName<Enumeration>);
  return row;
}

/// A parameter that may be left out, and its value then.
ParameterRow Optional(const char* name, Value default_value = Omitted{});

/// A parameter that counts as missing if it is null.
ParameterRow Nullable(ParameterRow parameter);

/// A parameter passed by reference if hosts bind to the class itself.
ParameterRow ByRef(ParameterRow parameter);

/// The outcome of an example that raises an error.
struct Raises {
  explicit Raises(int error_number) : number(error_number) {}
  int number;
};
struct ExampleRow {
  std::vector<Value> arguments;
  std::variant<Value, Raises> outcome = Value();
  std::vector<Call> before = {};
};

struct OperationRow {
  OperationInfo info;
  CallFunction call;
};
struct PropertyRow {
  PropertyInfo info;
  ReadFunction read = nullptr;
  WriteFunction write = nullptr;
};

/// The rows of a class.
struct ClassRow {
  std::string_view name;
  std::vector<EventInfo> events = {};
  CreateFunction create = nullptr;
  SubscribeFunction subscribe = nullptr;
  std::vector<PropertyRow> properties = {};
  std::vector<OperationRow> operations = {};
};

/// The catalogue data of an operation. Raises if a default, or the result of an example, does not
/// fit its type.
OperationInfo DescribeOperation(int number, std::string_view name, Effect effect,
                                std::span<const ParameterRow> parameters,
                                std::span<const TypeInfo> types, TypeInfo result,
                                std::span<const ExampleRow> examples);

template <typename... Parameters>
std::array<TypeInfo, sizeof...(Parameters)> TypesOf(
    const std::tuple<Parameters...>* /*signature*/) {
  return {TypeInfoOf<Parameters>()...};
}

/// The row of an operation.
template <auto Member>
OperationRow Operation(int number, std::string_view name, Effect effect,
                       std::span<const ParameterRow> parameters,
                       std::initializer_list<ExampleRow> examples) {
  const auto types = TypesOf(static_cast<ParametersOf<Member>*>(nullptr));
  return {DescribeOperation(number, name, effect, parameters, types, TypeInfoOf<ResultOf<Member>>(),
                            {examples.begin(), examples.size()}),
          CallMember<Member>};
}

/// The same with parameters in braces, as many as the member has.
template <auto Member, std::size_t N>
OperationRow Operation(int number, std::string_view name, Effect effect,
                       const ParameterRow (&parameters)[N],  // NOLINT(*-c-arrays): counts braces
                       std::initializer_list<ExampleRow> examples) {
  static_assert(N == kParameterCount<Member>, "a name for each parameter");
  return Operation<Member>(number, name, effect, std::span<const ParameterRow>(parameters),
                           examples);
}

/// The row of an operation without parameters.
template <auto Member>
OperationRow Operation(int number, std::string_view name, Effect effect,
                       std::initializer_list<ExampleRow> examples) {
  static_assert(kParameterCount<Member> == 0, "a name for each parameter");
  return Operation<Member>(number, name, effect, std::span<const ParameterRow>(), examples);
}

/// Reads a property.
template <auto Getter>
Value ReadProperty(void* instance) {
  return ToValue(std::invoke(Getter, *static_cast<ClassOf<Getter>*>(instance)));
}

/// Sets a property.
template <auto Setter>
void WriteProperty(void* instance, const Value& value, const CallContext& context) {
  const Argument<std::tuple_element_t<0, ParametersOf<Setter>>> argument(Source{value, {context}});
  std::invoke(Setter, *static_cast<ClassOf<Setter>*>(instance), argument.Get());
}

/// The row of a read-only property.
template <auto Getter>
PropertyRow Property(int number, std::string_view name) {
  return {.info = {.name = name,
                   .number = number,
                   .type = TypeInfoOf<ResultOf<Getter>>(),
                   .readable = true},
          .read = ReadProperty<Getter>};
}

/// The row of a write-only property.
template <auto Setter>
PropertyRow SetOnlyProperty(int number, std::string_view name) {
  return {.info = {.name = name,
                   .number = number,
                   .type = TypeInfoOf<std::tuple_element_t<0, ParametersOf<Setter>>>(),
                   .writable = true},
          .write = WriteProperty<Setter>};
}

/// The row of a property of something outside the program, such as a device.
PropertyRow Outside(PropertyRow property);

/// The row of a property that can be read and set.
template <auto Getter, auto Setter>
PropertyRow Property(int number, std::string_view name) {
  PropertyRow row = Property<Getter>(number, name);
  row.info.writable = true;
  row.write = WriteProperty<Setter>;
  return row;
}

/// The row of an event; `Member` is the listener's function.
template <auto Member>
EventInfo Event(int number, std::string_view name, std::initializer_list<ParameterRow> parameters) {
  const auto types = TypesOf(static_cast<ParametersOf<Member>*>(nullptr));
  OperationInfo call = DescribeOperation(number, name, Effect::kInstance,
                                         {parameters.begin(), parameters.size()}, types, {}, {});
  return {.name = name, .number = number, .parameters = std::move(call.parameters)};
}

/// Operations that may wait for something outside the program.
std::vector<OperationRow> MayBlock(std::vector<OperationRow> operations);

/// A property that may wait when it is set.
PropertyRow MayBlock(PropertyRow property);

/// Adds operations to a class.
void AddOperations(ClassRow& owner, std::vector<OperationRow> operations);

/// A calendar day, for examples.
OleDate Date(int year, int month, int day, int hour = 0, int minute = 0);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_CATALOGUE_ROWS_H_
