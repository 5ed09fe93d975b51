#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_PLAN_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_PLAN_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <cstddef>
#include <string>
#include <vector>

#include "fill/expression.h"

/// The calls for each row of a file, checked against its header and the catalogue.
namespace ZQ7Tool {

/// Where the value of a parameter comes from.
enum class Source : std::uint8_t {
  kDefault,   ///< the parameter's own
  kConstant,  ///< the expression
  kCell,      ///< a cell of the file
  kResult,    ///< a call before this one
};

struct PlannedArgument {
  Source source = Source::kDefault;
  ZQ7Standard::Automation::Value constant = {};
  std::size_t index = 0;    ///< of the cell, or of the call
  std::string column = {};  ///< the name of the column that is read, if it is one
};

/// A call with an argument for each parameter of its operation.
struct PlannedCall {
  const ZQ7Standard::Automation::ClassInfo* owner;
  const ZQ7Standard::Automation::OperationInfo* operation;
  std::vector<PlannedArgument> arguments;
};

struct PlannedColumn {
  std::string name;
  std::size_t call;  ///< whose result is written
};

struct Plan {
  std::vector<std::string> header;  ///< the names of the columns of the file
  std::vector<PlannedCall> calls;   ///< in their order
  std::vector<PlannedColumn> columns;
};

/// Throws `WrongUse` for whatever is known to be wrong before the first row: a name that does not
/// exist or is ambiguous, an operation that rows may not call, arguments that are missing or too
/// many, a value that cannot become the type of its parameter.
Plan PlanColumns(const std::vector<std::string>& header,
                 const std::vector<ColumnExpression>& columns);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_PLAN_H_
