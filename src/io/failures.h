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
  std::optional<ErrorDetails> error;  ///< nullopt for any exception but a `RunTimeError`
  std::string text;
};

/// Does `steps` and returns what stopped them, nullopt when nothing did. Services are
/// the host's to write, and may throw what they like: none of it leaves.
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

/// Does `steps`, leaving out those after one that fails. Returns whether all were done.
template <typename Steps>
bool Try(const Steps& steps) {
  return !FailureOf(steps);
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_FAILURES_H_
