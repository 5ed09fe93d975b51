#ifndef ZQ7STANDARD_TOOLS_ZQ7_JSON_VALUE_H_
#define ZQ7STANDARD_TOOLS_ZQ7_JSON_VALUE_H_

#include <ZQ7Standard/automation/value.h>

#include <functional>
#include <map>
#include <string>

#include "json_text.h"

/// Values as JSON, both ways:
///
///     left out             null
///     text                 "ก"; {"utf16":"d83d 0041"}, its code units, where UTF-8
///                          cannot hold it
///     16- and 32-bit       7; a whole number beyond 32 bits is read as a double
///     single, double       7.5; {"double":"NaN"}, "Infinity", "-Infinity"
///     Boolean              true
///     date                 {"date":"2024-01-15 09:30:00","days":45306.395833333336},
///                          either of which suffices
///     currency             {"currency":"10.3000"}
///     list of texts        ["a","b"]
///     object               {"object":"grid1"}, by its name
namespace ZQ7Tool {

using NamedObjects = std::map<std::string, ZQ7Standard::Automation::Object, std::less<>>;

/// Throws `JsonError` for anything else.
ZQ7Standard::Automation::Value ValueOfJson(const Json& json, const NamedObjects& objects = {});

/// The JSON of a text.
Json JsonOfText(ZQ7Standard::TextView text);

/// An object without a name is written as null.
Json JsonOfValue(const ZQ7Standard::Automation::Value& value, const NamedObjects& objects = {});

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_JSON_VALUE_H_
