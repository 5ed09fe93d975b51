#ifndef ZQ7STANDARD_AUTOMATION_CATALOGUE_H_
#define ZQ7STANDARD_AUTOMATION_CATALOGUE_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/automation/value.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The catalogue of the public classes, for callers by name and for generators of
/// bindings to other languages. Names are ASCII and are found without regard to case;
/// texts for people are UTF-8.
///
/// Everything here is plain data: a copy of it works wherever the catalogue's own does.
///
/// The members of a class have numbers: its operations, properties and events share one
/// sequence that begins at 1. Once released, a member's number never changes, so a binding
/// may store numbers instead of names.
namespace ZQ7Standard::Automation {

struct EnumeratorInfo {
  std::string_view name;
  std::int32_t value;
  std::string_view help = {};  ///< may be empty
};

struct EnumerationInfo {
  std::string_view name;
  std::span<const EnumeratorInfo> members;
  std::string_view help = {};
  std::string_view details = {};
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
  /// The value of an optional parameter that is left out; `Omitted` if the operation
  /// itself distinguishes the two.
  Value default_value = {};
  /// Passed by reference if hosts bind to the class itself. No operation writes to one.
  bool by_reference = false;
  /// Accepts `Null`: as a missing value, or as no object.
  bool nullable = false;
  std::string_view help = {};  ///< what the operation's documentation says about it; may be empty
};

/// A call on an instance.
struct Call {
  std::string_view operation;
  std::vector<Value> arguments = {};
};

/// A worked example of an operation: what a call on a new instance returns at 2024-01-15
/// 09:30 with dates typed day first in the Buddhist Era (`ExampleServices`).
///
/// A text in place of an object says what the host makes first: an instance of the class
/// by that name or, in place of a `PrintPicture`, the picture of that file.
struct Example {
  std::vector<Call> before = {};      ///< calls on the same instance that come first
  std::vector<Value> arguments = {};  ///< in the order of the parameters
  Value result = {};
  int error = 0;  ///< the run-time error number that it raises instead, if any
};

/// What a member uses besides its arguments; each also what stands above it, `kNone` to
/// `kClock`. Bindings decide by it which results may be stored, and which operations may be
/// called at all.
///
/// Up to `kRandom` an instance answers as a new one would, whatever it was asked before.
enum class Effect : std::uint8_t {
  kNone,        ///< equal arguments give equal results
  kConvention,  ///< the date convention
  kClock,       ///< the clock
  kRandom,      ///< the random source
  kInstance,    ///< what the instance keeps: it reads it, or is called in order to change it
  kOutside,     ///< files, devices, printers, the registry, message boxes, ciphers
};

struct OperationInfo {
  std::string_view name;
  int number = 0;
  std::vector<ParameterInfo> parameters = {};
  TypeInfo result = {};
  Effect effect = Effect::kNone;
  /// Whether it may wait for a file, a device, a print server or a message box, or derive
  /// keys. A host with a lock of its own should not hold it meanwhile.
  bool may_block = false;
  std::string_view help = {};     ///< one line, the first of the documentation
  std::string_view details = {};  ///< the rest, paragraphs separated by blank lines; may be empty
  std::string_view subject = {};  ///< shared by operations that belong together; may be empty
  std::vector<Example> examples = {};
};

struct PropertyInfo {
  std::string_view name;
  int number = 0;
  TypeInfo type = {};
  bool readable = false;
  bool writable = false;
  Effect effect = Effect::kInstance;
  bool may_block = false;  ///< as of an operation, when it is set
  std::string_view help = {};
  std::string_view details = {};
};

struct EventInfo {
  std::string_view name;
  int number = 0;
  std::vector<ParameterInfo> parameters = {};
  std::string_view help = {};
  std::string_view details = {};
};

struct ClassInfo {
  std::string_view name;
  std::string_view help = {};
  std::string_view details = {};
  std::vector<OperationInfo> operations = {};
  std::vector<PropertyInfo> properties = {};
  std::vector<EventInfo> events = {};
  bool creatable = false;  ///< by `Create`
};

/// What a name of a class stands for; both are null if it is neither.
struct MemberInfo {
  const OperationInfo* operation = nullptr;
  const PropertyInfo* property = nullptr;
};

/// Whether two names of the catalogue are the same: the case of A to Z does not count.
ZQ7STANDARD_EXPORT bool SameName(std::string_view a, std::string_view b);

/// The full name of a member: "StandardObject.CTDATE".
ZQ7STANDARD_EXPORT std::string QualifiedName(const ClassInfo& owner, std::string_view member);

/// Every public class, and every enumeration that their members take or return.
ZQ7STANDARD_EXPORT std::span<const ClassInfo> Classes();
ZQ7STANDARD_EXPORT std::span<const EnumerationInfo> Enumerations();

/// The class, the enumeration, or the member of a class, with that name; null if there is
/// none. What is found belongs to the catalogue, which lasts as long as the program, even
/// if `owner` is a copy.
ZQ7STANDARD_EXPORT const ClassInfo* FindClass(std::string_view name);
ZQ7STANDARD_EXPORT const EnumerationInfo* FindEnumeration(std::string_view name);
ZQ7STANDARD_EXPORT MemberInfo FindMember(const ClassInfo& owner, std::string_view name);
ZQ7STANDARD_EXPORT const OperationInfo* FindOperation(const ClassInfo& owner,
                                                      std::string_view name);
ZQ7STANDARD_EXPORT const PropertyInfo* FindProperty(const ClassInfo& owner, std::string_view name);
ZQ7STANDARD_EXPORT const EventInfo* FindEvent(const ClassInfo& owner, std::string_view name);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_AUTOMATION_CATALOGUE_H_
