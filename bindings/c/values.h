#ifndef ZQ7STANDARD_BINDINGS_C_VALUES_H_
#define ZQ7STANDARD_BINDINGS_C_VALUES_H_

#include <ZQ7Standard/automation/value.h>
#include <zq7standard.h>

#include <span>

namespace ZQ7C {

/// Makes `value` what a caller passed. Raises 5 for a tag that is not a value's, or a null pointer.
void Assign(const zq7_value& given, ZQ7Standard::Automation::Value& value);

/// The text that a caller passed. Raises 5 for any other value.
ZQ7Standard::TextView ToTextView(const zq7_value* value);

/// The date that a caller passed. Raises 5 for any other value.
ZQ7Standard::OleDate ToDate(const zq7_value* value);

/// Makes `out` a copy of `value`, which belongs to the library.
void Write(const ZQ7Standard::Automation::Value& value, zq7_value& out);

/// The same, but a text that fits is written to `room` and belongs to the caller.
void Write(const ZQ7Standard::Automation::Value& value, std::span<char16_t> room, zq7_value& out);

/// A text that belongs to someone else.
zq7_value View(ZQ7Standard::TextView text);

/// The tag of values of a type.
zq7_tag TagOf(ZQ7Standard::Automation::Type type);

}  // namespace ZQ7C

#endif  // ZQ7STANDARD_BINDINGS_C_VALUES_H_
