#include "base/raise.h"

#include <array>
#include <charconv>
#include <utility>

namespace ZQ7Standard {
namespace {

ErrorDetails DetailsAt(Error error, const Where& where, std::string_view detail) {
  ErrorDetails details = DetailsOf(error, detail);
  details.operation = where.operation;
  details.parameter = where.parameter;
  return details;
}

}  // namespace

ErrorInput::ErrorInput(double number) {
  std::array<char, 32> digits;
  const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  text_ = FromUtf8({digits.data(), end});
}

void Raise(Error error, const Where& where, const ErrorInput& input, std::string_view detail) {
  ErrorDetails details = DetailsAt(error, where, detail);
  details.input = input.Shown();
  throw RunTimeError(std::move(details));
}

void Raise(Error error, const Where& where, std::string_view detail) {
  throw RunTimeError(DetailsAt(error, where, detail));
}

void RaiseNamed(const Where& where, const RunTimeError& error) {
  ErrorDetails details = error.Details();
  if (details.operation.empty()) details.operation = where.operation;
  if (details.parameter.empty()) details.parameter = where.parameter;
  throw RunTimeError(std::move(details));
}

}  // namespace ZQ7Standard
