#ifndef ZQ7STANDARD_SRC_IO_FAILURES_H_
#define ZQ7STANDARD_SRC_IO_FAILURES_H_

#include <exception>
#include <optional>
#include <string>
#include <string_view>

#include "base/raise.h"

namespace ZQ7Standard {

/// What stopped an operation.
struct Failure {
  std::optional<ErrorDetails> error;  ///< nullopt for exceptions other than `RunTimeError`
  std::string text;
};

/// Runs `steps` and returns what stopped them, nullopt if nothing did. Hosts write services, which
/// may throw anything: no exception escapes.
template <typename Steps>
std::optional<Failure> FailureOf(const Steps& steps) {
  try {
    steps();
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return Failure{error.Details(), error.what()};
  } catch (const std::exception& error) {
    return Failure{std::nullopt, error.what()};
  } catch (...) {
    return Failure{std::nullopt, "a failure without a text"};
  }
}

/// Runs `steps` up to the first that fails. Returns whether all succeeded.
template <typename Steps>
bool Try(const Steps& steps) {
  return !FailureOf(steps);
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_FAILURES_H_
