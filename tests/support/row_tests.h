#ifndef ZQ7STANDARD_TESTS_SUPPORT_ROW_TESTS_H_
#define ZQ7STANDARD_TESTS_SUPPORT_ROW_TESTS_H_

#include <gtest/gtest.h>

#include <charconv>
#include <limits>
#include <optional>
#include <tuple>
#include <vector>

#include "tests/support/fakes.h"

namespace ZQ7Standard {

inline constexpr double kInfinity = std::numeric_limits<double>::infinity();
inline constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// Formats values as in the rows of a table; numbers with all their digits.
struct Show {
  std::string operator()(const std::string& text) const { return text; }
  std::string operator()(TextView text) const { return Utf8(text); }
  std::string operator()(OleDate date) const { return IsoText(date); }
  std::string operator()(Currency amount) const { return Utf8(amount.ToText()); }
  std::string operator()(bool value) const { return value ? "yes" : "no"; }
  std::string operator()(DateConvention convention) const { return NameOf(convention); }
  template <typename Number>
  requires std::is_arithmetic_v<Number> std::string operator()(Number number) const {
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, number).ptr};
  }
  template <typename Value>
  std::string operator()(const std::optional<Value>& value) const {
    return value ? (*this)(*value) : "none";
  }
};
inline constexpr Show Shown;

/// The result of `call` as in rows; "error 13" if it raises that.
std::string ResultOf(const auto& call) {
  std::string result;
  const int error = ErrorOf([&] { result = Shown(call()); });
  return error == 0 ? result : "error " + std::to_string(error);
}

template <typename... Inputs>
struct Row {
  std::tuple<Inputs...> inputs;
  const char* expected;
  const char* reason = "";
};

/// Checks the `ResultOf` calling `call` with the inputs of each row.
template <typename... Inputs>
void ExpectRows(const auto& call, const std::vector<Row<Inputs...>>& rows) {
  for (const auto& [inputs, expected, reason] : rows) {
    std::string row = reason;
    std::apply([&](auto... input) { ((row += "; " + Shown(input)), ...); }, inputs);
    EXPECT_EQ(ResultOf([&, &in = inputs] { return std::apply(call, in); }), expected) << row;
  }
}

/// The same for texts grouped by result.
void ExpectTexts(const auto& call,
                 const std::vector<std::pair<const char*, std::vector<TextView>>>& groups) {
  for (const auto& [expected, texts] : groups) {
    for (const TextView text : texts) ExpectRows<TextView>(call, {{text, expected}});
  }
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_ROW_TESTS_H_
