#ifndef ZQ7STANDARD_TOOLS_PAGES_WORKED_EXAMPLE_H_
#define ZQ7STANDARD_TOOLS_PAGES_WORKED_EXAMPLE_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <string>

/// The catalogue's examples in a form of no particular language: texts and lists as in JSON,
/// members of enumerations by name, dates as 2024-01-15.
namespace ZQ7Pages {

/// The calls of an example: "SetCols(3); Cols()".
std::string ExampleCalls(const ZQ7Standard::Automation::ClassInfo& owner,
                         const ZQ7Standard::Automation::OperationInfo& operation,
                         const ZQ7Standard::Automation::Example& example);

/// What it returns, as code, or the number of the error that it raises; empty if it returns
/// nothing.
std::string ExampleResult(const ZQ7Standard::Automation::OperationInfo& operation,
                          const ZQ7Standard::Automation::Example& example);

}  // namespace ZQ7Pages

#endif  // ZQ7STANDARD_TOOLS_PAGES_WORKED_EXAMPLE_H_
