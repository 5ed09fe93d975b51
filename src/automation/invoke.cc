#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/automation/invoke.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "automation/conversion.h"
#include "automation/instance.h"

namespace ZQ7Standard::Automation {

namespace {

HostServices Completed(HostServices services) {
  if (!services.clock) services.clock = SystemClock();
  if (!services.date_convention) services.date_convention = SystemDateConvention();
  return services;
}

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
      throw RunTimeError::WrongNumberOfArguments(operation_.name,
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
      throw RunTimeError::NamedArgumentNotFound(operation_.name, argument.name);
    }
    const auto place = static_cast<std::size_t>(named - parameters.begin());
    if (values_[place] != nullptr && !IsOmitted(*values_[place])) {
      throw RunTimeError::WrongNumberOfArguments(operation_.name,
                                                 std::string(argument.name) + " twice");
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
        throw RunTimeError::ArgumentNotOptional(operation_.name, parameter.name);
      }
      values_[i] = &parameter.default_value;
    }
  }

  const OperationInfo& operation_;
  std::array<const Value*, kMaxParameters> values_ = {};
};

}  // namespace

Object::Object(std::shared_ptr<const Instance> instance) : instance_(std::move(instance)) {}

const ClassInfo& Object::Class() const {
  return *instance_->owner;
}

EventSink::~EventSink() = default;

HostServices ExampleServices() {
  return {.clock = FixedClock(OleDate::FromParts(2024, 1, 15, 9, 30)),
          .date_convention = FixedDateConvention({FieldOrder::kDayFirst, Era::kBuddhist}),
          .registry = MemoryRegistry()};
}

Object Create(std::string_view class_name, const HostServices& services) {
  const ClassInfo* owner = FindClass(class_name);
  if (owner == nullptr || owner->create == nullptr)
    throw RunTimeError::CannotCreateObject("Create", class_name);
  return Object(std::make_shared<const Instance>(
      Instance{owner, owner->create(services), Completed(services)}));
}

Value Invoke(const Object& object, std::string_view operation, const Arguments& arguments) {
  const Instance& instance = object.Get();
  const OperationInfo* found = FindOperation(*instance.owner, operation);
  if (found == nullptr) {
    throw RunTimeError::UnsupportedMember("Invoke", QualifiedName(*instance.owner, operation));
  }
  const Values values(*found, arguments);
  return found->invoke(instance.object.get(), values.Get(),
                       {found->name, found->parameters, instance.services});
}

Value GetProperty(const Object& object, std::string_view property) {
  const Instance& instance = object.Get();
  const PropertyInfo* found = FindProperty(*instance.owner, property);
  if (found == nullptr || found->read == nullptr) {
    throw RunTimeError::UnsupportedMember("GetProperty", QualifiedName(*instance.owner, property));
  }
  return found->read(instance.object.get());
}

void SetProperty(const Object& object, std::string_view property, const Value& value) {
  const Instance& instance = object.Get();
  const PropertyInfo* found = FindProperty(*instance.owner, property);
  if (found == nullptr || found->write == nullptr) {
    throw RunTimeError::UnsupportedMember("SetProperty", QualifiedName(*instance.owner, property));
  }
  found->write(instance.object.get(), value, {found->name, {}, instance.services});
}

std::shared_ptr<void> Subscribe(const Object& object, std::shared_ptr<EventSink> sink) {
  const Instance& instance = object.Get();
  if (instance.owner->subscribe == nullptr) return nullptr;
  return instance.owner->subscribe(instance.object, std::move(sink));
}

}  // namespace ZQ7Standard::Automation
