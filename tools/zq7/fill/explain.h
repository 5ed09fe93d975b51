#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_EXPLAIN_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_EXPLAIN_H_

#include <ZQ7Standard/Types.h>

#include <string>

#include "fill/row_filler.h"

namespace ZQ7Tool {

/// The calls of a plan for people: for each new column its operation, and for each parameter where
/// its value comes from and how that is read.
std::string Explanation(const Plan& plan, const CellRules& rules,
                        ZQ7Standard::DateConvention convention);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_EXPLAIN_H_
