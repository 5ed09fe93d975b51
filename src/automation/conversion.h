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

/// The largest number of parameters of an operation.
inline constexpr std::size_t kMaxParameters = 30;

/// The context of a call.
struct CallContext {
  std::string_view member;                    ///< for error messages
  std::span<const ParameterInfo> parameters;  ///< empty when a property is set
  ServiceSet& services;
};

/// Where a value is passed: the index of the parameter, from 0.
struct Place {
  const CallContext& call;
  std::size_t parameter = 0;
};

// Convert a value to a type; an omitted one becomes the empty text if the type is text. Raise 449
// for any other omitted value, and 13 and 6 as `Invoke` documents.

double ToDouble(const Value& value, const Place& place);
float ToSingle(const Value& value, const Place& place);
template <typename Integer>
Integer ToInteger(const Value& value, const Place& place);
bool ToBoolean(const Value& value, const Place& place);
OleDate ToDate(const Value& value, const Place& place);
Currency ToCurrency(const Value& value, const Place& place);
Text ToText(const Value& value, const Place& place);
TextList ToTextList(const Value& value, const Place& place);
/// The instance behind an object of that class; null for a null.
std::shared_ptr<void> ToInstance(const Value& value, std::string_view class_name,
                                 const Place& place);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_CONVERSION_H_
