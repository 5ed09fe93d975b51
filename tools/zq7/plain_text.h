#ifndef ZQ7STANDARD_TOOLS_ZQ7_PLAIN_TEXT_H_
#define ZQ7STANDARD_TOOLS_ZQ7_PLAIN_TEXT_H_

#include <ZQ7Standard/automation/value.h>

#include <string>

namespace ZQ7Tool {

/// A value in one line of UTF-8: a text as it is, True and False, the shortest number that reads
/// back the same, dates as `IsoDate`. A lone surrogate becomes U+FFFD. Empty for `Omitted`.
std::string PlainText(const ZQ7Standard::Automation::Value& value);

/// The printed lines of a result: one per item of a list; none if there is no result.
std::string PlainLines(const ZQ7Standard::Automation::Value& result);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_PLAIN_TEXT_H_
