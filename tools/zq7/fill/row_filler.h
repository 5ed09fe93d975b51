#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_ROW_FILLER_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_ROW_FILLER_H_

#include <ZQ7Standard/automation/tables.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fill/encoding.h"
#include "fill/plan.h"

namespace ZQ7Tool {

/// How the cells of a file that parameters take as dates are read.
enum class Dates {
  kAsTyped,  ///< by the date convention, unless the year is first, which is refused
  kIso,      ///< 2024-01-31, Gregorian
  kTyped,    ///< by the date convention
};

/// How cells are read and written.
struct CellRules {
  char delimiter = ',';
  Encoding encoding = Encoding::kUtf8;
  Dates dates = Dates::kAsTyped;
  bool guard = false;  ///< an apostrophe before what a spreadsheet would take for a formula
};

/// Why a row has no new cells.
struct RowFailure {
  std::string column = {};  ///< the new one; empty if the row itself is wrong
  std::string reason = {};
};

/// Computes the new cells of rows. No row depends on another one. Belongs to one thread.
class RowFiller {
 public:
  /// `plan` must outlive the filler.
  RowFiller(const Plan& plan, const CellRules& rules, const ZQ7Standard::Services& services);

  /// Appends the new cells for those of a row, each after a delimiter, to `out`; returns the failure
  /// and appends nothing if there is one.
  std::optional<RowFailure> Fill(std::span<const std::string_view> cells, std::string& out);

 private:
  void Call(std::size_t index, std::span<const std::string_view> cells);
  ZQ7Standard::Automation::Value ReadCell(std::string_view cell,
                                          ZQ7Standard::Automation::Type type);
  ZQ7Standard::Automation::Value ReadDate(std::string_view content) const;
  ZQ7Standard::Text DecodedCell(std::string_view content) const;
  void AppendResult(const ZQ7Standard::Automation::Value& result, std::string& out);

  const Plan& plan_;
  CellRules rules_;
  ZQ7Standard::Automation::RowObjects objects_;
  std::vector<std::vector<ZQ7Standard::Automation::Value>> arguments_;  // of each call
  std::vector<ZQ7Standard::Automation::Value> results_;                 // of each call
  std::string unquoted_;
  std::string encoded_;
};

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_ROW_FILLER_H_
