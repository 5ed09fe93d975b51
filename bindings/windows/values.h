#ifndef ZQ7STANDARD_BINDINGS_WINDOWS_VALUES_H_
#define ZQ7STANDARD_BINDINGS_WINDOWS_VALUES_H_

#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/automation/catalogue.h>
#include <ZQ7Standard/automation/value.h>

#include "base/raise.h"
#include "com.h"

/// Values of automation and those of the catalogue.
namespace ZQ7Windows {

/// A text of automation, as long as it lasts. A null is the empty text.
ZQ7Standard::TextView ViewOf(BSTR text);
/// Throws `std::bad_alloc` if there is no memory for it.
BSTR NewBstr(ZQ7Standard::TextView text);
/// An array of texts, counted from 0, for hosts that know the type; `VT_VARIANT` for those that do
/// not, as scripts cannot read arrays of texts.
SAFEARRAY* NewArray(const ZQ7Standard::Automation::TextList& list, VARTYPE element);

/// A value that a host passes to what `wanted` describes. References are followed, to any depth;
/// an object is asked for its default property if no object is wanted; Empty is 0 or the empty
/// text. Arrays of texts and of values are lists, and so are the arrays of scripts that are objects
/// with a `length`. Raises 13 for a value of a type that the catalogue does not have.
ZQ7Standard::Automation::Value ToValue(const VARIANT& given,
                                       const ZQ7Standard::Automation::TypeInfo& wanted,
                                       const ZQ7Standard::Where& where);

/// A value of that type for a host that calls by name; `result` is empty before.
void FromValue(const ZQ7Standard::Automation::Value& value, ZQ7Standard::Automation::Type type,
               VARIANT& result);

}  // namespace ZQ7Windows

#endif  // ZQ7STANDARD_BINDINGS_WINDOWS_VALUES_H_
