#include "fill/row_filler.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <cstdint>
#include <stdexcept>

#include "fill/csv_cells.h"
#include "names.h"
#include "plain_text.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

/// A cell that cannot be read or written.
class CellError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// The number of digits with at most one point among them, which every reader of numbers reads the
/// same; nullopt for any other text. Digits and power of ten are exact, so the quotient is rounded
/// once.
std::optional<double> PlainNumber(std::string_view text) {
  constexpr std::size_t kMostDigits = 15;
  constexpr std::size_t kNoPoint = std::string_view::npos;
  if (text.empty() || text.size() > kMostDigits || !IsDigit(text.back())) return std::nullopt;
  std::int64_t digits = 0;
  std::int64_t divisor = 1;
  std::size_t point = kNoPoint;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsDigit(text[i])) {
      digits = digits * 10 + (text[i] - '0');
      if (point != kNoPoint) divisor *= 10;
    } else if (text[i] == '.' && point == kNoPoint && i > 0) {
      point = i;
    } else {
      return std::nullopt;
    }
  }
  return static_cast<double>(digits) / static_cast<double>(divisor);
}

bool IsNumber(Type type) {
  return type == Type::kByte || type == Type::kInteger || type == Type::kLong ||
         type == Type::kSingle || type == Type::kDouble;
}

/// Whether a date begins with a year of four digits.
bool IsYearFirst(std::string_view content) {
  content.remove_prefix(std::min(content.find_first_not_of(' '), content.size()));
  constexpr std::size_t kYearDigits = 4;
  return content.size() > kYearDigits &&
         std::ranges::all_of(content.substr(0, kYearDigits), IsDigit) &&
         std::string_view("-/.").find(content[kYearDigits]) != std::string_view::npos;
}

bool LooksLikeFormula(std::string_view content) {
  return !content.empty() && std::string_view("=+-@\t\r").find(content.front()) < 6;
}

}  // namespace

RowFiller::RowFiller(const Plan& plan, const CellRules& rules, const Services& services)
    : plan_(plan), rules_(rules), objects_(services), results_(plan.calls.size()) {
  for (const PlannedCall& call : plan.calls) {
    auto& arguments = arguments_.emplace_back();
    for (const PlannedArgument& argument : call.arguments) arguments.push_back(argument.constant);
  }
}

std::optional<RowFailure> RowFiller::Fill(std::span<const std::string_view> cells,
                                          std::string& out) {
  const std::size_t row = out.size();
  std::size_t next_call = 0;
  for (const PlannedColumn& column : plan_.columns) {
    try {
      for (; next_call <= column.call; ++next_call) Call(next_call, cells);
      AppendResult(results_[column.call], out);
    } catch (const std::bad_alloc&) {
      throw;
    } catch (const std::exception& failure) {
      out.resize(row);
      return RowFailure{column.name, failure.what()};
    }
  }
  return std::nullopt;
}

void RowFiller::Call(std::size_t index, std::span<const std::string_view> cells) {
  const PlannedCall& call = plan_.calls[index];
  std::vector<Value>& arguments = arguments_[index];
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const PlannedArgument& planned = call.arguments[i];
    if (planned.source == Source::kCell) {
      arguments[i] = ReadCell(cells[planned.index], call.operation->parameters[i].type.type);
    } else if (planned.source == Source::kResult) {
      arguments[i] = results_[planned.index];
    }
  }
  results_[index] = objects_.Call(*call.owner, *call.operation, arguments);
}

/// A text that the call converts, unless it is clear what that gives.
Value RowFiller::ReadCell(std::string_view cell, Type type) {
  const std::string_view content = CellContent(cell, unquoted_);
  if (type == Type::kDate) return ReadDate(content);
  if (IsNumber(type)) {
    if (const auto number = PlainNumber(content)) return *number;
  }
  return DecodedCell(content);
}

Value RowFiller::ReadDate(std::string_view content) const {
  if (rules_.dates == Dates::kIso) {
    if (const auto date = OleDate::FromIso(content)) return *date;
    throw CellError(Quoted(Utf8(DecodedCell(content))) + " is not a date such as 2024-01-31");
  }
  if (rules_.dates == Dates::kAsTyped && IsYearFirst(content)) {
    throw CellError(
        Quoted(Utf8(DecodedCell(content))) +
        " begins with the year: --dates iso reads it as Gregorian, --dates typed by the "
        "date convention");
  }
  return DecodedCell(content);
}

Text RowFiller::DecodedCell(std::string_view content) const {
  if (auto text = Decoded(content, rules_.encoding)) return *std::move(text);
  throw CellError(Quoted(Utf8(FromUtf8(content))) + " is not UTF-8");
}

void RowFiller::AppendResult(const Value& result, std::string& out) {
  const auto* const text = std::get_if<Text>(&result);
  if (!Encode(text != nullptr ? *text : FromUtf8(PlainText(result)), rules_.encoding, encoded_)) {
    throw CellError(Quoted(PlainText(result)) + " has a character that the encoding lacks");
  }
  out += rules_.delimiter;
  if (rules_.guard && LooksLikeFormula(encoded_)) encoded_.insert(0, 1, '\'');
  AppendCell(out, encoded_, rules_.delimiter);
}

}  // namespace ZQ7Tool
