#ifndef ZQ7STANDARD_AUTOMATION_INVOKE_H_
#define ZQ7STANDARD_AUTOMATION_INVOKE_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/automation/catalogue.h>
#include <ZQ7Standard/automation/value.h>

#include <memory>
#include <span>
#include <string_view>

namespace ZQ7Standard {
class PrintPicture;
class SerialPort;
}  // namespace ZQ7Standard

namespace ZQ7Standard::Automation {

/// What the examples of the catalogue run with, besides an empty folder C:\shop: a fixed
/// clock, a date convention, and a registry in memory.
ZQ7STANDARD_EXPORT Services ExampleServices();

struct NamedArgument {
  std::string_view name;
  Value value;
};

/// The arguments of a call: first those given by position, then those given by name. An
/// `Omitted` leaves its parameter out.
struct Arguments {
  std::span<const Value> positional = {};
  std::span<const NamedArgument> named = {};
};

/// Receives the events of an instance, on the thread of the operation and inside it. It
/// may call the instance again; what it throws reaches the caller of the operation, as
/// `Invoke` says.
class ZQ7STANDARD_EXPORT EventSink {
 public:
  virtual ~EventSink();

  virtual void Raise(const EventInfo& event, std::span<const Value> arguments) = 0;
};

/// A new instance of a class. Raises 429 for an unknown name, and for a class that is not
/// `creatable`.
ZQ7STANDARD_EXPORT Object Create(std::string_view class_name, const Services& services = {});

/// A device or a picture of the host's own, to pass to operations. Its properties are read
/// and set by name as well, values being converted with the date convention and the clock
/// of `services`. Raises 91 for a null pointer.
ZQ7STANDARD_EXPORT Object Wrap(std::shared_ptr<SerialPort> port, const Services& services = {});
ZQ7STANDARD_EXPORT Object Wrap(std::shared_ptr<PrintPicture> picture,
                               const Services& services = {});

/// Calls an operation and returns its result, `Omitted` if it has none. Every failure is
/// a `RunTimeError` that names class, operation and, if an argument is wrong, its
/// parameter: what the operation raises, 7 if it runs out of memory, 440 with the text of any
/// other exception, and
/// - 438 for a name that is not an operation of the class,
/// - 448 for an argument name that is not a parameter,
/// - 449 for an argument that is missing and not optional; if the parameter is a text,
///   one passed as `Omitted` is the empty text instead,
/// - 450 for too many arguments, or two for one parameter,
/// - 13 for a text that is not the number (date, Boolean) expected, and for an unexpected
///   list, object or null,
/// - 6 for a number that does not fit the type expected.
///
/// Values are converted to the parameter's type by the rules of automation. Whole numbers
/// are rounded, halves to even. True is -1 as a number (255 as a byte) and any number but
/// 0 is True. A date is its day count. A number as text has at most 15 significant
/// digits, a single 7. A text is read as a number from end to end, ignoring blanks around
/// it and "," between digits; as a Boolean if it is "True" or "False" in any case, or a
/// number; as a date by the services' convention (docs/dates.md), or a day count. A date
/// as text is d/m/yyyy or m/d/yyyy in the convention's order and era, and h:mm:ss if it
/// has a time of day; the time alone on day 0. Nothing becomes an object: a text in place
/// of one raises 13, so that no script opens a device by mistake.
ZQ7STANDARD_EXPORT Value Invoke(const Object& object, std::string_view operation,
                                const Arguments& arguments);
/// The same with an operation found before. Raises 438 for one of another class.
ZQ7STANDARD_EXPORT Value Invoke(const Object& object, const OperationInfo& operation,
                                const Arguments& arguments);

/// The value of a property. Raises 438 for an unknown name, and for a property that is
/// write-only or another class's.
ZQ7STANDARD_EXPORT Value GetProperty(const Object& object, std::string_view property);
ZQ7STANDARD_EXPORT Value GetProperty(const Object& object, const PropertyInfo& property);

/// Sets a property, converting the value as `Invoke` does. Raises 438 for an unknown
/// name, and for a property that is read-only or another class's.
ZQ7STANDARD_EXPORT void SetProperty(const Object& object, std::string_view property,
                                    const Value& value);
ZQ7STANDARD_EXPORT void SetProperty(const Object& object, const PropertyInfo& property,
                                    const Value& value);

/// Sends the events of an instance to `sink` as long as the result is kept. Returns null
/// for a class without events.
[[nodiscard]] ZQ7STANDARD_EXPORT std::shared_ptr<void> Subscribe(const Object& object,
                                                                 std::shared_ptr<EventSink> sink);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_AUTOMATION_INVOKE_H_
