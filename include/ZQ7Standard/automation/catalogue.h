#ifndef ZQ7STANDARD_AUTOMATION_CATALOGUE_H_
#define ZQ7STANDARD_AUTOMATION_CATALOGUE_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/automation/value.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The catalogue of the public classes, for whatever calls them by name or writes
/// bindings for another language. Names are ASCII and are found without regard to
/// case; texts for people are UTF-8.
namespace ZQ7Standard::Automation {

struct EnumeratorInfo {
  std::string_view name;
  std::int32_t value;
};

struct EnumerationInfo {
  std::string_view name;
  std::span<const EnumeratorInfo> members;
};

/// The type of a parameter, a property or a result.
struct TypeInfo {
  Type type = Type::kNothing;
  const EnumerationInfo* enumeration = nullptr;  ///< whose members a `kLong` takes; may be null
  std::string_view object_class = {};            ///< the name of a `kObject`'s class
};

struct ParameterInfo {
  std::string_view name;
  TypeInfo type = {};
  bool optional = false;
  /// What an optional parameter is when it is left out; `Omitted` when the operation
  /// itself tells the two apart.
  Value default_value = {};
  /// Passed by reference where hosts bind to the class itself. No operation writes to one.
  bool by_reference = false;
};

/// A call on an instance.
struct Call {
  std::string_view operation;
  std::vector<Value> arguments = {};
};

/// A worked example of an operation: what a call on a new instance gives at 2024-01-15
/// 09:30 (`ExampleServices`) where dates are typed day first in the Buddhist Era.
struct Example {
  std::vector<Call> before = {};      ///< calls on the same instance that come first
  std::vector<Value> arguments = {};  ///< in the order of the parameters
  Value result = {};
  int error = 0;  ///< the run-time error number that it raises instead, if any
};

struct CallContext;

struct OperationInfo {
  std::string_view name;
  std::vector<ParameterInfo> parameters = {};
  TypeInfo result = {};
  std::string_view help = {};  ///< one line
  std::vector<Example> examples = {};
  std::string_view subject = {};  ///< shared by operations that belong together; may be empty
  std::string_view details = {};  ///< the whole documentation, paragraphs parted by blank lines
  /// The call itself, for `Invoke`: a value for every parameter.
  Value (*invoke)(void* instance, std::span<const Value* const> arguments,
                  const CallContext& context) = nullptr;
};

/// A property; `read` or `write` is null where it can only be set or read.
struct PropertyInfo {
  std::string_view name;
  TypeInfo type = {};
  std::string_view help = {};
  std::string_view details = {};
  Value (*read)(void* instance) = nullptr;
  void (*write)(void* instance, const Value& value, const CallContext& context) = nullptr;
};

struct EventInfo {
  std::string_view name;
  std::vector<ParameterInfo> parameters = {};
  std::string_view help = {};
};

class EventSink;

struct ClassInfo {
  std::string_view name;
  std::string_view help = {};
  std::string_view details = {};
  std::vector<OperationInfo> operations = {};
  std::vector<PropertyInfo> properties = {};
  std::vector<EventInfo> events = {};
  /// Null for a class whose instances are only made from a text.
  std::shared_ptr<void> (*create)(const Services& services) = nullptr;
  /// What a text stands for where an instance is wanted; null where only the name of the
  /// class stands for one, a new instance.
  std::shared_ptr<void> (*from_text)(const Services& services, TextView text) = nullptr;
  /// Sends the events of an instance to `sink` until the result goes; null where the
  /// class has no events.
  std::shared_ptr<void> (*subscribe)(std::shared_ptr<void> instance,
                                     std::shared_ptr<EventSink> sink) = nullptr;
};

/// Whether two names of the catalogue are the same: the case of A to Z does not count.
ZQ7STANDARD_EXPORT bool SameName(std::string_view a, std::string_view b);

/// The full name of a member: "StandardObject.CTDATE".
ZQ7STANDARD_EXPORT std::string QualifiedName(const ClassInfo& owner, std::string_view member);

/// Every public class.
ZQ7STANDARD_EXPORT std::span<const ClassInfo> Classes();

/// The class, or the member of a class, with that name; null for none.
ZQ7STANDARD_EXPORT const ClassInfo* FindClass(std::string_view name);
ZQ7STANDARD_EXPORT const OperationInfo* FindOperation(const ClassInfo& owner,
                                                      std::string_view name);
ZQ7STANDARD_EXPORT const PropertyInfo* FindProperty(const ClassInfo& owner, std::string_view name);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_AUTOMATION_CATALOGUE_H_
