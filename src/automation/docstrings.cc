#include "automation/docstrings.h"

#include <algorithm>
#include <array>

namespace ZQ7Standard::Automation {
namespace {

struct Row {
  std::string_view name;
  std::string_view comment;
};

/// Made from the headers by cmake/docstrings.cmake.
constexpr auto kRows = std::to_array<Row>({
#include "automation/docstring_rows.inc"
});

}  // namespace

std::string_view Docstring(std::string_view qualified_name) {
  const auto row = std::ranges::find(kRows, qualified_name, &Row::name);
  return row == kRows.end() ? std::string_view() : row->comment;
}

}  // namespace ZQ7Standard::Automation
