#include "failures.h"

#include <ZQ7Standard/RunTimeError.h>

#include <exception>
#include <new>
#include <optional>
#include <string>

namespace ZQ7C {
namespace {

using ZQ7Standard::Error;
using ZQ7Standard::RunTimeError;

/// What a thread knows of failures. Errors share their details, so keeping one needs no memory.
struct Failures {
  std::optional<RunTimeError> last;
  std::optional<RunTimeError> told;
  zq7_error view = {};
};
thread_local Failures failures;

/// The error for when there is no memory to make one.
const RunTimeError& OutOfMemory() {
  static const RunTimeError error(Error::kOutOfMemory);
  return error;
}
// Made before memory runs out.
[[maybe_unused]] const RunTimeError& out_of_memory_is_made = OutOfMemory();

RunTimeError CurrentError() {
  try {
    throw;
  } catch (const RunTimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return OutOfMemory();
  } catch (const std::exception& error) {
    return RunTimeError(Error::kAutomationError, error.what());
  } catch (...) {
    return RunTimeError(Error::kAutomationError, "a failure without a text");
  }
}

}  // namespace

void RaiseWrongUse(std::string_view wrong) {
  throw RunTimeError(Error::kInvalidArgument, wrong);
}

void KeepCurrentException() noexcept {
  try {
    failures.last = CurrentError();
  } catch (...) {
    failures.last = OutOfMemory();
  }
}

void ForgetToldFailure() noexcept {
  failures.told.reset();
}

void RaiseToldFailure() {
  if (!failures.told) throw RunTimeError(Error::kAutomationError, "a function of the host failed");
  throw RunTimeError(*failures.told);
}

}  // namespace ZQ7C

const zq7_error* zq7_last_error() {
  using ZQ7C::failures;
  if (!failures.last) return nullptr;
  const ZQ7Standard::ErrorDetails& details = failures.last->Details();
  failures.view = {.number = details.number,
                   .message = failures.last->what(),
                   .text = details.text.c_str(),
                   .class_name = details.class_name.c_str(),
                   .operation = details.operation.c_str(),
                   .parameter = details.parameter.c_str(),
                   .input = details.input ? details.input->c_str() : nullptr,
                   .input_length = details.input ? details.input->size() : 0};
  return &failures.view;
}

void zq7_fail(int32_t number, const char* text) {
  ZQ7C::Guarded([&] {
    ZQ7C::failures.told.emplace(static_cast<int>(number),
                                std::string_view(text == nullptr ? "" : text));
  });
}
