#ifndef ZQ7STANDARD_TOOLS_ZQ7_EXAMPLES_H_
#define ZQ7STANDARD_TOOLS_ZQ7_EXAMPLES_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <string>

namespace ZQ7Tool {

/// The worked examples of an operation as lines to paste into a shell, each followed by its output.
std::string ExampleLines(const ZQ7Standard::Automation::ClassInfo& owner,
                         const ZQ7Standard::Automation::OperationInfo& operation);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_EXAMPLES_H_
