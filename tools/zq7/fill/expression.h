#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_EXPRESSION_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_EXPRESSION_H_

#include <ZQ7Standard/Types.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "wrong_use.h"

/// What `zq7 fill --with` takes: COLUMN=CLASS.OPERATION(ARGUMENT, NAME=ARGUMENT).
namespace ZQ7Tool {

/// A value as it is written.
struct Expression {
  enum class Kind {
    kWord,    ///< a column, True, False or a member of an enumeration
    kColumn,  ///< [a column], `a column`
    kText,    ///< 'a text', "a text"
    kNumber,
    kDate,  ///< 2024-01-31
    kCall,  ///< CLASS.OPERATION(...)
  };

  Kind kind = Kind::kWord;
  std::size_t place = 0;  ///< of its first byte in the source
  std::string text = {};  ///< without quotes; "CLASS.OPERATION" of a call
  double number = 0;      ///< of a number
  ZQ7Standard::OleDate date = {};
  std::string parameter = {};              ///< the name before "="; empty by position
  std::size_t argument_place = 0;          ///< of that name, or of the value without one
  std::vector<Expression> arguments = {};  ///< of a call
};

/// A new column and the call that computes it.
struct ColumnExpression {
  std::string source;
  std::string name;
  Expression call;
};

/// How deep calls may be nested.
inline constexpr int kMaxNesting = 32;

/// The message, and the source with a caret under its byte `place`.
WrongUse WrongExpression(std::string_view source, std::size_t place, std::string_view message);

/// Reads an expression; throws `WrongUse` with the place of a mistake. Names are not looked up.
ColumnExpression ReadColumnExpression(const std::string& source);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_EXPRESSION_H_
