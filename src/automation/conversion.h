#ifndef ZQ7STANDARD_SRC_AUTOMATION_CONVERSION_H_
#define ZQ7STANDARD_SRC_AUTOMATION_CONVERSION_H_

#include <ZQ7Standard/automation/invoke.h>
#include <ZQ7Standard/automation/value.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "platform/service_set.h"

namespace ZQ7Standard::Automation {

/// The most parameters that an operation has.
inline constexpr std::size_t kMaxParameters = 30;

/// What a call runs with.
struct CallContext {
  std::string_view member;                    ///< for the messages of errors
  std::span<const ParameterInfo> parameters;  ///< none while a property is set
  ServiceSet& services;
};

/// Where a value is wanted: the parameter with that index, from 0.
struct Place {
  const CallContext& call;
  std::size_t parameter = 0;
};

// The value as the type wanted; an omitted one is the empty text where a text is wanted.
// Raise 449 for any other omitted one, 13 and 6 as `Invoke` has it.

double ToDouble(const Value& value, const Place& place);
float ToSingle(const Value& value, const Place& place);
template <typename Integer>
Integer ToInteger(const Value& value, const Place& place);
bool ToBoolean(const Value& value, const Place& place);
OleDate ToDate(const Value& value, const Place& place);
Currency ToCurrency(const Value& value, const Place& place);
Text ToText(const Value& value, const Place& place);
TextList ToTextList(const Value& value, const Place& place);
/// What the object of a class is; null for a null.
std::shared_ptr<void> ToInstance(const Value& value, std::string_view class_name,
                                 const Place& place);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_CONVERSION_H_
