#include "objects.h"

#include <ZQ7Standard/RunTimeError.h>

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "failures.h"
#include "host_table.h"
#include "values.h"

namespace ZQ7C {
namespace {

using namespace ZQ7Standard::Automation;

/// Converts a value that a caller passed. An error, such as that of a date outside the calendar,
/// names the member and the parameter.
void AssignFor(const ClassInfo& owner, std::string_view member, std::string_view parameter,
               const zq7_value& given, Value& value) {
  try {
    Assign(given, value);
  } catch (const ZQ7Standard::RunTimeError& error) {
    ZQ7Standard::ErrorDetails details = error.Details();
    details.class_name = owner.name;
    details.operation = member;
    details.parameter = parameter;
    throw ZQ7Standard::RunTimeError(std::move(details));
  }
}

/// The values of a call. Those of most calls are on the stack, and only as many are made as there
/// are.
class Values {
 public:
  // Delegates, so that a failure destroys the values made so far.
  Values(const ClassInfo& owner, const OperationInfo& operation, const zq7_value* given,
         std::size_t count)
      : Values() {
    if (count > few_.size()) many_.resize(count);
    const auto& parameters = operation.parameters;
    for (std::size_t i = 0; i < count; ++i) {
      const std::string_view name = i < parameters.size() ? parameters[i].name : "";
      AssignFor(owner, operation.name, name, given[i], Place(i));
    }
  }
  ~Values() { std::destroy_n(few_.data(), made_); }
  Values(const Values&) = delete;
  Values& operator=(const Values&) = delete;

  std::span<const Value> Get() const {
    return many_.empty() ? std::span<const Value>(few_.data(), made_) : many_;
  }

 private:
  Values() {}  // NOLINT(*-use-equals-default): leaves the union empty

  Value& Place(std::size_t i) {
    return many_.empty() ? *std::construct_at(&few_[made_++]) : many_[i];
  }

  union {
    std::array<Value, 4> few_;  // NOLINT(*-identifier-naming): private; the first `made_` exist
  };
  std::size_t made_ = 0;
  std::vector<Value> many_;
};

zq7_object& Required(zq7_object* object) {
  Require(object != nullptr, "no object");
  return *object;
}

void RequireArguments(const void* arguments, std::size_t count) {
  Require(arguments != nullptr || count == 0, "no arguments");
}

/// Raises 438 for a number that is not a member's.
[[noreturn]] void RaiseUnsupported(const zq7_object& object, int32_t number) {
  using namespace ZQ7Standard;
  ErrorDetails details = RunTimeError(Error::kUnsupportedMember).Details();
  details.class_name = object.owner.c.name;
  details.operation = std::to_string(number);
  throw RunTimeError(std::move(details));
}

const OperationInfo& OperationOf(const zq7_object& object, int32_t number) {
  const Member& member = object.owner.Find(number);
  if (member.operation == nullptr) RaiseUnsupported(object, number);
  return *member.operation;
}

const PropertyInfo& PropertyOf(const zq7_object& object, int32_t number) {
  const Member& member = object.owner.Find(number);
  if (member.property == nullptr) RaiseUnsupported(object, number);
  return *member.property;
}

/// Runs `call` and writes its value to `result`, which is empty after a failure and may be null; a
/// text goes to `room` if it fits.
template <typename Call>
zq7_status Written(zq7_value* result, const Call& call, std::span<char16_t> room = {}) {
  if (result != nullptr) *result = {};
  return Guarded([&] {
    const Value value = call();
    if (result != nullptr) Write(value, room, *result);
  });
}

/// Passes the events of an object to a host.
class HostSink final : public EventSink {
 public:
  HostSink(const zq7_event_sink& table, const Class& owner) : table_(table), owner_(owner) {}

  void Raise(const EventInfo& event, std::span<const Value> arguments) override {
    std::vector<zq7_value> values(arguments.size());
    const std::shared_ptr<void> cleared(nullptr, [&](void*) {
      for (zq7_value& value : values) zq7_value_clear(&value);
    });
    for (std::size_t i = 0; i < arguments.size(); ++i) Write(arguments[i], values[i]);
    CallHost(table_->raise, table_->context, owner_.Find(event.number).c, values.data(),
             values.size());
  }

 private:
  HostTable<zq7_event_sink> table_;
  const Class& owner_;
};

}  // namespace
}  // namespace ZQ7C

using ZQ7C::Guarded;
using ZQ7C::Require;
using ZQ7C::Required;

/// Events are sent as long as it exists.
struct zq7_subscription {
  std::shared_ptr<void> kept;
};

int32_t zq7_version() {
  return ZQ7STANDARD_VERSION_NUMBER;
}

zq7_status zq7_create(const char* class_name, const zq7_services* services, zq7_object** object) {
  return ZQ7C::Made(object, [&] {
    Require(class_name != nullptr, "no name of a class");
    return services == nullptr ? ZQ7Standard::Automation::Create(class_name)
                               : ZQ7Standard::Automation::Create(class_name, services->services);
  });
}

void zq7_release(zq7_object* object) {
  delete object;
}

const zq7_class* zq7_class_of(const zq7_object* object) {
  return object == nullptr ? nullptr : &object->owner.c;
}

zq7_status zq7_invoke(zq7_object* object, int32_t number, const zq7_value* arguments, size_t count,
                      zq7_value* result) {
  return zq7_invoke_text(object, number, arguments, count, nullptr, 0, result);
}

zq7_status zq7_invoke_text(zq7_object* object, int32_t number, const zq7_value* arguments,
                           size_t count, char16_t* buffer, size_t capacity, zq7_value* result) {
  const auto call = [&] {
    Require(buffer != nullptr || capacity == 0, "no buffer");
    const auto& operation = ZQ7C::OperationOf(Required(object), number);
    ZQ7C::RequireArguments(arguments, count);
    const ZQ7C::Values values(object->object.Class(), operation, arguments, count);
    return ZQ7Standard::Automation::Invoke(object->object, operation, {values.Get()});
  };
  return ZQ7C::Written(result, call, {buffer, capacity});
}

zq7_status zq7_invoke_by_name(zq7_object* object, const char* operation,
                              const zq7_argument* arguments, size_t count, zq7_value* result) {
  return ZQ7C::Written(result, [&] {
    Require(operation != nullptr, "no name of an operation");
    ZQ7C::RequireArguments(arguments, count);
    const auto& owner = Required(object).object.Class();
    std::vector<ZQ7Standard::Automation::Value> positional;
    std::vector<ZQ7Standard::Automation::NamedArgument> named;
    for (const auto& [name, value] : std::span(arguments, count)) {
      if (name != nullptr) {
        ZQ7C::AssignFor(owner, operation, name, value,
                        named.emplace_back(ZQ7Standard::Automation::NamedArgument{name, {}}).value);
      } else {
        Require(named.empty(), "an argument by position after one by name");
        ZQ7C::AssignFor(owner, operation, "", value, positional.emplace_back());
      }
    }
    return ZQ7Standard::Automation::Invoke(object->object, operation, {positional, named});
  });
}

zq7_status zq7_get(zq7_object* object, int32_t number, zq7_value* value) {
  return ZQ7C::Written(value, [&] {
    const auto& property = ZQ7C::PropertyOf(Required(object), number);
    return ZQ7Standard::Automation::GetProperty(object->object, property);
  });
}

zq7_status zq7_get_by_name(zq7_object* object, const char* property, zq7_value* value) {
  return ZQ7C::Written(value, [&] {
    Require(property != nullptr, "no name of a property");
    return ZQ7Standard::Automation::GetProperty(Required(object).object, property);
  });
}

zq7_status zq7_set(zq7_object* object, int32_t number, const zq7_value* value) {
  return Guarded([&] {
    const auto& property = ZQ7C::PropertyOf(Required(object), number);
    Require(value != nullptr, "no value");
    ZQ7Standard::Automation::Value converted;
    ZQ7C::AssignFor(object->object.Class(), property.name, "", *value, converted);
    ZQ7Standard::Automation::SetProperty(object->object, property, converted);
  });
}

zq7_status zq7_set_by_name(zq7_object* object, const char* property, const zq7_value* value) {
  return Guarded([&] {
    Require(property != nullptr, "no name of a property");
    Require(value != nullptr, "no value");
    ZQ7Standard::Automation::Value converted;
    ZQ7C::AssignFor(Required(object).object.Class(), property, "", *value, converted);
    ZQ7Standard::Automation::SetProperty(object->object, property, converted);
  });
}

zq7_status zq7_subscribe(zq7_object* object, const zq7_event_sink* sink,
                         zq7_subscription** subscription) {
  return Guarded([&] {
    Require(subscription != nullptr, "no place for the subscription");
    *subscription = nullptr;
    const auto& owner = Required(object).owner;
    ZQ7C::CheckTable(sink, &zq7_event_sink::raise);
    if ((owner.c.flags & ZQ7_HAS_EVENTS) == 0) {
      throw ZQ7Standard::RunTimeError(ZQ7Standard::Error::kUnsupportedMember, "no events");
    }
    *subscription = new zq7_subscription{ZQ7Standard::Automation::Subscribe(
        object->object, std::make_shared<ZQ7C::HostSink>(*sink, owner))};
  });
}

void zq7_unsubscribe(zq7_subscription* subscription) {
  delete subscription;
}
