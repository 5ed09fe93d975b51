#ifndef ZQ7STANDARD_BINDINGS_SQLITE_VALUES_H_
#define ZQ7STANDARD_BINDINGS_SQLITE_VALUES_H_

#include <ZQ7Standard/automation/catalogue.h>
#include <sqlite3ext.h>

namespace ZQ7SQLite {

/// An argument as SQLite has it: a number stays a number, a text a text. A date is an ISO text in
/// the Gregorian calendar. Raises 13 for anything else in place of a date, and for a blob; a NULL
/// becomes `Null`.
ZQ7Standard::Automation::Value ArgumentOf(sqlite3_value* value,
                                          const ZQ7Standard::Automation::ParameterInfo& parameter);

/// Returns a value from a function: a date as an ISO text, a Boolean as 1 or 0, an amount of money
/// as a number, a list of texts as JSON. Raises 5 for a text that SQLite could not give back: with
/// a character 0, or a surrogate that lacks its partner.
void SetResult(sqlite3_context* context, const ZQ7Standard::Automation::Value& value);

}  // namespace ZQ7SQLite

#endif  // ZQ7STANDARD_BINDINGS_SQLITE_VALUES_H_
