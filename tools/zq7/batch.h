#ifndef ZQ7STANDARD_TOOLS_ZQ7_BATCH_H_
#define ZQ7STANDARD_TOOLS_ZQ7_BATCH_H_

#include <ostream>
#include <streambuf>

#include "host.h"

namespace ZQ7Tool {

/// Answers each non-blank line of `in` by one line of `out`, until `in` ends or `out` fails. Output
/// is flushed before waiting for `in`. Exceptions from reading reach the caller.
void RunBatch(std::streambuf& in, std::ostream& out, const Settings& settings);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_BATCH_H_
