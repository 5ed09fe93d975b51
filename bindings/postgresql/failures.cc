#include "failures.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <array>
#include <exception>
#include <new>

namespace ZQ7PostgreSQL {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

struct StateRow {
  Error error;
  std::string_view state;
};

constexpr std::string_view kOutOfMemory = "53200";

constexpr auto kStates = std::to_array<StateRow>({
    {Error::kInvalidArgument, "22023"},      // invalid_parameter_value
    {Error::kOverflow, "22003"},             // numeric_value_out_of_range
    {Error::kOutOfMemory, kOutOfMemory},     // out_of_memory
    {Error::kSubscriptOutOfRange, "2202E"},  // array_subscript_error
    {Error::kDivisionByZero, "22012"},       // division_by_zero
    {Error::kTypeMismatch, "22P02"},         // invalid_text_representation
});
constexpr std::string_view kExternalRoutineException = "38000";

struct Texts {
  std::string message;
  std::string detail;
};

Failure Keep(std::string_view state, Texts texts) {
  static Texts kept;
  kept = std::move(texts);
  return {state, kept.message, kept.detail};
}

Texts TextsOf(const RunTimeError& error) {
  const ErrorDetails& details = error.Details();
  std::string detail = "run-time error " + std::to_string(details.number) + " in " +
                       details.class_name + "." + details.operation;
  if (!details.parameter.empty()) detail += ", parameter " + details.parameter;
  return {error.what(), detail};
}

Failure FailureOf(const std::string& member) {
  try {
    throw;
  } catch (const RunTimeError& error) {
    return Keep(StateOf(error.Number()), TextsOf(error));
  } catch (const Refused& refused) {
    return Keep(refused.State(), {member + ": " + refused.what(), "in " + member});
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    return Keep(kExternalRoutineException, {member + ": " + error.what(), "in " + member});
  }
}

}  // namespace

std::string_view StateOf(int number) {
  const auto* const row = std::ranges::find(kStates, static_cast<Error>(number), &StateRow::error);
  return row == kStates.end() ? kExternalRoutineException : row->state;
}

Failure CurrentFailure(const ClassInfo& owner, const OperationInfo& operation) noexcept {
  try {
    return FailureOf(QualifiedName(owner, operation.name));
  } catch (...) {
    return {kOutOfMemory, "out of memory", "in an operation of zq7standard"};
  }
}

}  // namespace ZQ7PostgreSQL
