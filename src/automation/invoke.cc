#include <ZQ7Standard/automation/invoke.h>

#include <algorithm>
#include <array>
#include <exception>
#include <string>
#include <utility>

#include "automation/conversion.h"
#include "automation/instance.h"
#include "base/raise.h"

namespace ZQ7Standard::Automation {

namespace {

bool IsOmitted(const Value& value) {
  return std::holds_alternative<Omitted>(value);
}

/// One value for each parameter of an operation.
class Values {
 public:
  Values(const OperationInfo& operation, const Arguments& arguments) : operation_(operation) {
    TakePositional(arguments.positional);
    for (const NamedArgument& argument : arguments.named) TakeNamed(argument);
    TakeDefaults();
  }

  std::span<const Value* const> Get() const {
    return std::span(values_).first(operation_.parameters.size());
  }

 private:
  void TakePositional(std::span<const Value> arguments) {
    if (arguments.size() > operation_.parameters.size()) {
      Raise(Error::kWrongNumberOfArguments, {},
            std::to_string(arguments.size()) + " for " +
                std::to_string(operation_.parameters.size()));
    }
    for (std::size_t i = 0; i < arguments.size(); ++i) Take(i, arguments[i]);
  }

  void TakeNamed(const NamedArgument& argument) {
    const auto& parameters = operation_.parameters;
    const auto named = std::ranges::find_if(parameters, [&](const ParameterInfo& parameter) {
      return SameName(parameter.name, argument.name);
    });
    if (named == parameters.end()) {
      Raise(Error::kNamedArgumentNotFound, {}, FromUtf8(argument.name));
    }
    const auto place = static_cast<std::size_t>(named - parameters.begin());
    if (values_[place] != nullptr && !IsOmitted(*values_[place])) {
      Raise(Error::kWrongNumberOfArguments, {{}, named->name}, "given twice");
    }
    Take(place, argument.value);
  }

  /// An argument that is passed as missing takes the default of its parameter. Without one
  /// it goes to the conversion, to which a missing text is the empty text.
  void Take(std::size_t place, const Value& argument) {
    if (IsOmitted(argument) && operation_.parameters[place].optional) return;
    values_[place] = &argument;
  }

  void TakeDefaults() {
    for (std::size_t i = 0; i < operation_.parameters.size(); ++i) {
      const ParameterInfo& parameter = operation_.parameters[i];
      if (values_[i] != nullptr) continue;
      if (!parameter.optional) {
        Raise(Error::kArgumentNotOptional, {{}, parameter.name});
      }
      values_[i] = &parameter.default_value;
    }
  }

  const OperationInfo& operation_;
  std::array<const Value*, kMaxParameters> values_ = {};
};

[[noreturn]] void RaiseUnsupported(const ClassInfo& owner, std::string_view member) {
  ErrorDetails details = RunTimeError(Error::kUnsupportedMember).Details();
  details.class_name = owner.name;
  details.operation = member;
  throw RunTimeError(details);
}

/// Raises a failure of a member again under the names that the caller used: what
/// operations call in turn, and services, name others or none.
[[noreturn]] void RaiseAs(const ClassInfo& owner, std::string_view member,
                          std::span<const ParameterInfo> parameters, ErrorDetails details) {
  details.class_name = owner.name;
  details.operation = member;
  const auto known = std::ranges::find(parameters, details.parameter, &ParameterInfo::name);
  if (known == parameters.end()) details.parameter.clear();
  throw RunTimeError(details);
}

/// Does a call of `member`. What it throws reaches the caller as a `RunTimeError` that names
/// it; an exception without a number is an automation error.
template <typename Call>
auto Reported(const ClassInfo& owner, std::string_view member,
              std::span<const ParameterInfo> parameters, const Call& call) {
  try {
    return call();
  } catch (const RunTimeError& error) {
    RaiseAs(owner, member, parameters, error.Details());
  } catch (const std::exception& error) {
    const RunTimeError foreign(Error::kAutomationError, error.what());
    RaiseAs(owner, member, parameters, foreign.Details());
  } catch (...) {
    const RunTimeError foreign(Error::kAutomationError, "a failure without a text");
    RaiseAs(owner, member, parameters, foreign.Details());
  }
}

}  // namespace

Object::Object(std::shared_ptr<const Instance> instance) : instance_(std::move(instance)) {}

const ClassInfo& Object::Class() const {
  return *instance_->owner;
}

EventSink::~EventSink() = default;

Services ExampleServices() {
  return {.clock = FixedClock(OleDate::FromParts(2024, 1, 15, 9, 30)),
          .date_convention = FixedDateConvention({FieldOrder::kDayFirst, Era::kBuddhist}),
          .registry = MemoryRegistry()};
}

Object Create(std::string_view class_name, const Services& services) {
  const ClassInfo* owner = FindClass(class_name);
  if (owner == nullptr || owner->create == nullptr)
    throw RunTimeError({.number = static_cast<int>(Error::kCannotCreateObject),
                        .text = "cannot create object",
                        .class_name = std::string(class_name)});
  return Object(std::make_shared<const Instance>(
      Instance{owner, owner->create(services), std::make_shared<ServiceSet>(services)}));
}

Value Invoke(const Object& object, std::string_view operation, const Arguments& arguments) {
  const Instance& instance = object.Get();
  const OperationInfo* found = FindOperation(*instance.owner, operation);
  if (found == nullptr) RaiseUnsupported(*instance.owner, operation);
  return Reported(*instance.owner, found->name, found->parameters, [&] {
    const Values values(*found, arguments);
    return found->invoke(instance.object.get(), values.Get(),
                         {found->name, found->parameters, *instance.services});
  });
}

Value GetProperty(const Object& object, std::string_view property) {
  const Instance& instance = object.Get();
  const PropertyInfo* found = FindProperty(*instance.owner, property);
  if (found == nullptr || found->read == nullptr) RaiseUnsupported(*instance.owner, property);
  return Reported(*instance.owner, found->name, {},
                  [&] { return found->read(instance.object.get()); });
}

void SetProperty(const Object& object, std::string_view property, const Value& value) {
  const Instance& instance = object.Get();
  const PropertyInfo* found = FindProperty(*instance.owner, property);
  if (found == nullptr || found->write == nullptr) RaiseUnsupported(*instance.owner, property);
  Reported(*instance.owner, found->name, {}, [&] {
    found->write(instance.object.get(), value, {found->name, {}, *instance.services});
  });
}

std::shared_ptr<void> Subscribe(const Object& object, std::shared_ptr<EventSink> sink) {
  const Instance& instance = object.Get();
  if (instance.owner->subscribe == nullptr) return nullptr;
  return instance.owner->subscribe(instance.object, std::move(sink));
}

}  // namespace ZQ7Standard::Automation
