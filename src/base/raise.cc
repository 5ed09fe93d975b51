#include "base/raise.h"

#include <array>
#include <charconv>

namespace ZQ7Standard {
namespace {

ErrorDetails DetailsOf(Error error, const Where& where, std::string_view detail) {
  ErrorDetails details = RunTimeError(error, detail).Details();
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
  ErrorDetails details = DetailsOf(error, where, detail);
  details.input = input.Shown();
  throw RunTimeError(details);
}

void Raise(Error error, const Where& where, std::string_view detail) {
  throw RunTimeError(DetailsOf(error, where, detail));
}

void RaiseNamed(const Where& where, const RunTimeError& error) {
  ErrorDetails details = error.Details();
  if (details.operation.empty()) details.operation = where.operation;
  if (details.parameter.empty()) details.parameter = where.parameter;
  throw RunTimeError(details);
}

}  // namespace ZQ7Standard
