#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_FILL_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_FILL_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "command_line.h"
#include "fill/row_filler.h"
#include "host.h"

namespace ZQ7Tool {

/// The options of `zq7 fill`.
struct FillOptions {
  std::vector<std::string> with = {};
  std::string output = "-";
  std::string errors = {};  ///< empty: a summary on standard error
  std::optional<char> delimiter = std::nullopt;
  Encoding encoding = Encoding::kUtf8;
  Dates dates = Dates::kAsTyped;
  std::size_t jobs = 0;  ///< 0: one for each core
  bool explain = false;
  bool stop = false;
  bool guard = false;
  bool quiet = false;
};

/// Adds columns to the CSV file `name`, which `source` reads. Returns the exit status; throws
/// `WrongUse` before the first row is read if a column cannot be computed.
int FillFile(const std::string& name, std::streambuf& source, const FillOptions& options,
             const Settings& settings, const Streams& streams);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_FILL_H_
