#ifndef ZQ7STANDARD_AUTOMATION_VALUE_H_
#define ZQ7STANDARD_AUTOMATION_VALUE_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

namespace ZQ7Standard::Automation {

struct ClassInfo;
struct Instance;

/// An argument that is left out, and the result of an operation that has none.
struct Omitted {
  friend bool operator==(Omitted, Omitted) = default;
};

/// A null passed explicitly, by hosts that have such a value. It converts to nothing:
/// only `nullable` parameters accept one.
struct Null {
  friend bool operator==(Null, Null) = default;
};

using TextList = std::vector<Text>;

/// An instance of a public class, made by `Create` or `Wrap`. Copies refer to the same
/// instance, which lives as long as any of them; it belongs to one thread at a time.
class ZQ7STANDARD_EXPORT Object {
 public:
  explicit Object(std::shared_ptr<const Instance> instance);

  const ClassInfo& Class() const;
  const Instance& Get() const { return *instance_; }

  friend bool operator==(const Object&, const Object&) = default;

 private:
  std::shared_ptr<const Instance> instance_;
};

/// What crosses a call by name. Numbers, texts, Booleans, dates and currency are
/// converted to the type of the parameter by the rules that `Invoke` lists.
using Value = std::variant<Omitted, Null, Text, std::int16_t, std::int32_t, float, double, bool,
                           OleDate, Currency, TextList, Object>;

/// The types of parameters and results.
enum class Type : std::uint8_t {
  kNothing,   ///< no result: `Omitted`
  kText,      ///< `Text`
  kByte,      ///< 0 to 255; as a result `std::int16_t`
  kInteger,   ///< `std::int16_t`
  kLong,      ///< `std::int32_t`; also every enumeration
  kSingle,    ///< `float`
  kDouble,    ///< `double`
  kBoolean,   ///< `bool`; -1 and 0 as a number
  kDate,      ///< `OleDate`
  kCurrency,  ///< `Currency`
  kTextList,  ///< `TextList`, counted from 0
  kObject,    ///< `Object`
};

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_AUTOMATION_VALUE_H_
