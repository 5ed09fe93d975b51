#ifndef ZQ7STANDARD_TOOLS_ZQ7_ISO_DATE_H_
#define ZQ7STANDARD_TOOLS_ZQ7_ISO_DATE_H_

#include <ZQ7Standard/Types.h>

#include <string>

namespace ZQ7Tool {

/// "2024-01-15 09:30:00": in the Gregorian calendar, whatever the date convention.
std::string IsoDateTime(ZQ7Standard::OleDate date);

/// The same, but only the day for a date without a time of day.
std::string IsoDate(ZQ7Standard::OleDate date);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_ISO_DATE_H_
