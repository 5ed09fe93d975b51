#include "late_binding.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include "base/raise.h"
#include "failures.h"
#include "values.h"

namespace ZQ7Windows {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

namespace {

/// What stands for a class's default property: operations that read and set it.
struct DefaultRow {
  std::string_view class_name;
  std::string_view getter;
  std::string_view setter;
};
constexpr auto kDefaults = std::to_array<DefaultRow>({
    {"GridValueObject", "GetValue", "Setvalue"},
});

/// A name in ASCII; nullopt if it has other characters, as no member's has.
std::optional<std::string> Name(LPCOLESTR name) {
  std::string text;
  for (; *name != L'\0'; ++name) {
    if (*name > 0x7F) return std::nullopt;
    text.push_back(static_cast<char>(*name));
  }
  return text;
}

DISPID FindParameter(const OperationInfo* operation, LPCOLESTR name) {
  const auto text = Name(name);
  if (operation == nullptr || !text) return DISPID_UNKNOWN;
  const auto& parameters = operation->parameters;
  const auto found = std::ranges::find_if(
      parameters, [&](const ParameterInfo& parameter) { return SameName(parameter.name, *text); });
  if (found == parameters.end()) return DISPID_UNKNOWN;
  return static_cast<DISPID>(found - parameters.begin());
}

/// The arguments of a call, which automation passes from the last to the first, after those with
/// names.
class Given {
 public:
  /// The value that a property is set to is the last argument.
  explicit Given(const DISPPARAMS& given)
      : given_(given),
        named_(given.cNamedArgs == 1 && given.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT
                   ? 0
                   : given.cNamedArgs) {}

  std::size_t PositionalCount() const { return given_.cArgs - named_; }
  std::size_t NamedCount() const { return named_; }
  const VARIANT& Positional(std::size_t index) const {
    return given_.rgvarg[given_.cArgs - 1 - index];
  }
  const VARIANT& Named(std::size_t index) const { return given_.rgvarg[index]; }
  std::size_t ParameterOf(std::size_t named) const {
    return static_cast<std::size_t>(given_.rgdispidNamedArgs[named]);
  }

  /// Where the host put the argument of a parameter; nullopt if it did not.
  std::optional<UINT> PlaceOf(std::size_t parameter) const {
    if (parameter < PositionalCount()) return static_cast<UINT>(given_.cArgs - 1 - parameter);
    for (UINT i = 0; i < named_; ++i) {
      if (ParameterOf(i) == parameter) return i;
    }
    return std::nullopt;
  }

 private:
  const DISPPARAMS& given_;
  UINT named_;
};

Value InvokeOperation(const Object& object, const OperationInfo& operation, const Given& given) {
  const auto& parameters = operation.parameters;
  const auto value = [&](const VARIANT& argument, std::size_t parameter) {
    const ParameterInfo& info = parameters[parameter];
    return ToValue(argument, info.type, {operation.name, info.name});
  };
  const std::size_t count = given.PositionalCount();
  if (count > parameters.size()) {
    Raise(Error::kWrongNumberOfArguments, {operation.name},
          Text(FromUtf8(std::to_string(count) + " for " + std::to_string(parameters.size()))));
  }
  std::vector<Value> positional;
  positional.reserve(count);
  for (std::size_t i = 0; i < count; ++i) positional.push_back(value(given.Positional(i), i));
  std::vector<NamedArgument> named;
  for (std::size_t i = 0; i < given.NamedCount(); ++i) {
    const std::size_t parameter = given.ParameterOf(i);
    if (parameter >= parameters.size()) Raise(Error::kNamedArgumentNotFound, {operation.name}, i);
    named.push_back({parameters[parameter].name, value(given.Named(i), parameter)});
  }
  return Invoke(object, operation, {positional, named});
}

Value SetOrGet(const Object& object, const PropertyInfo& property, const Given& given, bool set) {
  if (given.PositionalCount() != (set ? 1U : 0U) || given.NamedCount() != 0) {
    Raise(Error::kWrongNumberOfArguments, {property.name}, given.PositionalCount());
  }
  if (!set) return GetProperty(object, property);
  SetProperty(object, property, ToValue(given.Positional(0), property.type, {property.name}));
  return Omitted{};
}

/// The member that a call means; its name is empty if there is none.
struct Target {
  std::string_view name = {};
  const OperationInfo* operation = nullptr;
  const PropertyInfo* property = nullptr;
  bool set = false;
};

Target TargetOf(const Members& members, DISPID id, WORD flags) {
  const bool set = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  if (id == DISPID_VALUE) {
    const ClassInfo& owner = members.Owner();
    const auto* const row = std::ranges::find(kDefaults, owner.name, &DefaultRow::class_name);
    if (row == kDefaults.end()) return {};
    const std::string_view name = set ? row->setter : row->getter;
    return {name, FindOperation(owner, name)};
  }
  const auto [operation, property] = members.At(id);
  // A host that asks for a property must not start an operation.
  if (operation != nullptr && (flags & DISPATCH_METHOD) != 0) return {operation->name, operation};
  if (property != nullptr) return {property->name, nullptr, property, set};
  return {};
}

/// Tells the host which of its arguments is wrong, if one is.
void ReportArgument(const LateCall& call, const Given& given, const OperationInfo* operation,
                    const std::string& parameter) {
  if (call.wrong_argument == nullptr || operation == nullptr) return;
  const auto found = std::ranges::find(operation->parameters, parameter, &ParameterInfo::name);
  if (found == operation->parameters.end()) return;
  const auto index = static_cast<std::size_t>(found - operation->parameters.begin());
  if (const auto place = given.PlaceOf(index)) *call.wrong_argument = *place;
}

}  // namespace

Members::Members(std::string_view class_name) : owner_(FindClass(class_name)) {
  const auto add = [this](int number, const MemberInfo& member) {
    const auto place = static_cast<std::size_t>(number);
    if (place >= by_number_.size()) by_number_.resize(place + 1);
    by_number_[place] = member;
  };
  for (const OperationInfo& operation : owner_->operations) {
    add(operation.number, {.operation = &operation});
  }
  for (const PropertyInfo& property : owner_->properties) {
    add(property.number, {.property = &property});
  }
}

MemberInfo Members::At(DISPID id) const {
  const auto place = static_cast<std::size_t>(id);
  return id > 0 && place < by_number_.size() ? by_number_[place] : MemberInfo();
}

HRESULT FindNames(const Members& members, LPOLESTR* names, UINT count, DISPID* ids) {
  if (names == nullptr || ids == nullptr) return E_POINTER;
  if (count == 0) return S_OK;
  const auto name = Name(names[0]);
  const auto [operation, property] = name ? FindMember(members.Owner(), *name) : MemberInfo();
  ids[0] = operation != nullptr  ? operation->number
           : property != nullptr ? property->number
                                 : DISPID_UNKNOWN;
  for (UINT i = 1; i < count; ++i) ids[i] = FindParameter(operation, names[i]);
  return std::find(ids, ids + count, DISPID_UNKNOWN) == ids + count ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT InvokeLate(const Members& members, const Object& object, const LateCall& call) {
  const Target target = TargetOf(members, call.id, call.flags);
  if (target.name.empty()) return DISP_E_MEMBERNOTFOUND;
  const Given given(call.given);
  const auto* const operation = target.operation;
  const auto parameters =
      operation == nullptr ? std::span<const ParameterInfo>() : std::span(operation->parameters);
  try {
    const Value value = operation != nullptr
                            ? InvokeOperation(object, *operation, given)
                            : SetOrGet(object, *target.property, given, target.set);
    if (call.result != nullptr) {
      FromValue(value, operation != nullptr ? operation->result.type : target.property->type.type,
                *call.result);
    }
    return S_OK;
  } catch (...) {
    const Failure failure = CaughtFailure(members.Owner(), target.name, parameters);
    Fill(call.info, failure);
    ReportArgument(call, given, operation, failure.parameter);
    return DISP_E_EXCEPTION;
  }
}

}  // namespace ZQ7Windows
