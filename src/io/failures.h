#ifndef ZQ7STANDARD_SRC_IO_FAILURES_H_
#define ZQ7STANDARD_SRC_IO_FAILURES_H_

#include <ZQ7Standard/RunTimeError.h>

#include <exception>
#include <optional>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// What stopped an operation.
struct Failure {
  std::optional<int> number;  ///< of the run-time error; nullopt for any other exception
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
    return Failure{error.Number(), error.what()};
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

/// Does `steps` of printing. A failure without a number of its own becomes the printer
/// error of `operation`.
template <typename Steps>
void Reported(std::string_view operation, const Steps& steps) {
  const auto failure = FailureOf(steps);
  if (!failure) return;
  if (failure->number) throw RunTimeError(*failure->number, failure->text);
  throw RunTimeError::PrinterError(operation, failure->text);
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_IO_FAILURES_H_
