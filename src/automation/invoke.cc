#include <ZQ7Standard/automation/invoke.h>
#include <ZQ7Standard/platform/machine.h>

#include <algorithm>
#include <array>
#include <exception>
#include <new>
#include <string>
#include <utility>

#include "automation/conversion.h"
#include "automation/failure.h"
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

  /// A missing argument takes the default of its parameter. Without a default it goes to the
  /// conversion, which reads a missing text as empty.
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
  ErrorDetails details = DetailsOf(Error::kUnsupportedMember);
  details.class_name = owner.name;
  details.operation = member;
  throw RunTimeError(std::move(details));
}

/// Raises a member's failure under the names that the caller used.
[[noreturn]] void RaiseAs(const ClassInfo& owner, std::string_view member,
                          std::span<const ParameterInfo> parameters, ErrorDetails details) {
  details.class_name = owner.name;
  details.operation = member;
  const auto known = std::ranges::find(parameters, details.parameter, &ParameterInfo::name);
  if (known == parameters.end()) details.parameter.clear();
  throw RunTimeError(std::move(details));
}

/// Runs `call`; what it throws names `member`.
template <typename Call>
auto RunAs(const ClassInfo& owner, std::string_view member,
           std::span<const ParameterInfo> parameters, const Call& call) {
  try {
    return call();
  } catch (...) {
    RethrowAs(owner, member, parameters);
  }
}

/// The member that `info` describes; null if the class of the instance does not have it. The number
/// finds it; the name is compared because another class may use the same number.
template <typename Info>
const MemberEntry* MemberOf(const Instance& instance, const Info& info) {
  const auto& members = instance.owner->members;
  const auto place = static_cast<std::size_t>(info.number);
  if (place >= members.size()) return nullptr;
  const auto& [operation, property] = members[place].info;
  const std::string_view name = operation != nullptr  ? operation->name
                                : property != nullptr ? property->name
                                                      : std::string_view();
  return name == info.name ? &members[place] : nullptr;
}

Value InvokeMember(const Instance& instance, const MemberEntry* member, std::string_view name,
                   const Arguments& arguments) {
  const ClassInfo& owner = *instance.owner->info;
  if (member == nullptr || member->call == nullptr) RaiseUnsupported(owner, name);
  const OperationInfo& operation = *member->info.operation;
  return RunAs(owner, operation.name, operation.parameters, [&] {
    const Values values(operation, arguments);
    return member->call(instance.object.get(), values.Get(),
                        {operation.name, operation.parameters, *instance.services});
  });
}

Value ReadMember(const Instance& instance, const MemberEntry* member, std::string_view name) {
  const ClassInfo& owner = *instance.owner->info;
  if (member == nullptr || member->read == nullptr) RaiseUnsupported(owner, name);
  return RunAs(owner, member->info.property->name, {},
               [&] { return member->read(instance.object.get()); });
}

void WriteMember(const Instance& instance, const MemberEntry* member, std::string_view name,
                 const Value& value) {
  const ClassInfo& owner = *instance.owner->info;
  if (member == nullptr || member->write == nullptr) RaiseUnsupported(owner, name);
  const std::string_view property = member->info.property->name;
  RunAs(owner, property, {}, [&] {
    member->write(instance.object.get(), value, {property, {}, *instance.services});
  });
}

Object Wrapped(std::string_view class_name, std::shared_ptr<void> object,
               const Services& services) {
  if (object == nullptr) throw RunTimeError(Error::kObjectNotSet);
  return Object(std::make_shared<const Instance>(
      Instance{FindEntry(class_name), std::move(object), std::make_shared<ServiceSet>(services)}));
}

}  // namespace

void RethrowAs(const ClassInfo& owner, std::string_view member,
               std::span<const ParameterInfo> parameters) {
  try {
    throw;
  } catch (const RunTimeError& error) {
    RaiseAs(owner, member, parameters, error.Details());
  } catch (const std::bad_alloc&) {
    RaiseAs(owner, member, parameters, DetailsOf(Error::kOutOfMemory));
  } catch (const std::exception& error) {
    RaiseAs(owner, member, parameters, DetailsOf(Error::kAutomationError, error.what()));
  } catch (...) {
    RaiseAs(owner, member, parameters,
            DetailsOf(Error::kAutomationError, "a failure without a text"));
  }
}

Object::Object(std::shared_ptr<const Instance> instance) : instance_(std::move(instance)) {}

const ClassInfo& Object::Class() const {
  return *instance_->owner->info;
}

EventSink::~EventSink() = default;

Services ExampleServices() {
  return {.clock = FixedClock(OleDate::FromParts(2024, 1, 15, 9, 30)),
          .date_convention = FixedDateConvention({FieldOrder::kDayFirst, Era::kBuddhist}),
          .registry = MemoryRegistry(),
          .machine = FixedMachine({.computer_name = u"SHOP-01",
                                   .disk_serial_number = u"S4EVNX0N123456",
                                   .volume_serial_number = u"1A2B3C4D"})};
}

Object Create(std::string_view class_name, const Services& services) {
  const ClassEntry* owner = FindEntry(class_name);
  if (owner == nullptr || owner->create == nullptr) {
    throw RunTimeError({.number = static_cast<int>(Error::kCannotCreateObject),
                        .text = "cannot create object",
                        .class_name = std::string(class_name)});
  }
  return Wrapped(owner->info->name, owner->create(services), services);
}

Object Wrap(std::shared_ptr<SerialPort> port, const Services& services) {
  return Wrapped("SerialPort", std::move(port), services);
}

Object Wrap(std::shared_ptr<PrintPicture> picture, const Services& services) {
  return Wrapped("PrintPicture", std::move(picture), services);
}

Value Invoke(const Object& object, std::string_view operation, const Arguments& arguments) {
  const Instance& instance = object.Get();
  return InvokeMember(instance, FindMemberEntry(*instance.owner, operation), operation, arguments);
}

Value Invoke(const Object& object, const OperationInfo& operation, const Arguments& arguments) {
  const Instance& instance = object.Get();
  return InvokeMember(instance, MemberOf(instance, operation), operation.name, arguments);
}

Value GetProperty(const Object& object, std::string_view property) {
  const Instance& instance = object.Get();
  return ReadMember(instance, FindMemberEntry(*instance.owner, property), property);
}

Value GetProperty(const Object& object, const PropertyInfo& property) {
  const Instance& instance = object.Get();
  return ReadMember(instance, MemberOf(instance, property), property.name);
}

void SetProperty(const Object& object, std::string_view property, const Value& value) {
  const Instance& instance = object.Get();
  WriteMember(instance, FindMemberEntry(*instance.owner, property), property, value);
}

void SetProperty(const Object& object, const PropertyInfo& property, const Value& value) {
  const Instance& instance = object.Get();
  WriteMember(instance, MemberOf(instance, property), property.name, value);
}

std::shared_ptr<void> Subscribe(const Object& object, std::shared_ptr<EventSink> sink) {
  const Instance& instance = object.Get();
  if (instance.owner->subscribe == nullptr) return nullptr;
  return instance.owner->subscribe(instance.object, std::move(sink));
}

}  // namespace ZQ7Standard::Automation
