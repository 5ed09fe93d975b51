#ifndef ZQ7STANDARD_SRC_BASE_RAISE_H_
#define ZQ7STANDARD_SRC_BASE_RAISE_H_

#include <ZQ7Standard/RunTimeError.h>

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

namespace ZQ7Standard {

/// What an error tells whose operation and input are not known.
ErrorDetails DetailsOf(Error error, std::string_view detail = {});

/// The operation that the host called and the parameter with the wrong argument.
struct Where {
  std::string_view operation = {};
  std::string_view parameter = {};
};

/// An argument as shown in an error message.
class ErrorInput {
 public:
  // Arguments are easiest to read where each converts implicitly. NOLINTBEGIN(*-explicit-*)
  ErrorInput(TextView text) : text_(text) {}
  ErrorInput(Text text) : text_(std::move(text)) {}
  ErrorInput(double number);
  ErrorInput(OleDate date) : text_(date.ToText()) {}
  ErrorInput(Currency amount) : text_(amount.ToText()) {}
  ErrorInput(std::integral auto number) : text_(FromUtf8(std::to_string(number))) {}
  // NOLINTEND(*-explicit-*)

  const Text& Shown() const { return text_; }

 private:
  Text text_;
};

/// Raises `error` for that argument; `detail` follows the error's standard text.
[[noreturn]] void Raise(Error error, const Where& where, const ErrorInput& input,
                        std::string_view detail = {});

/// Raises an `error` that is not about an argument.
[[noreturn]] void Raise(Error error, const Where& where, std::string_view detail = {});

/// Raises `error` again with the operation and parameter that it lacks.
[[noreturn]] void RaiseNamed(const Where& where, const RunTimeError& error);

/// Runs `steps` of an operation. An error that a service raises in them, which does not know the
/// operation, is raised again with its name.
template <typename Steps>
auto Named(const Where& where, const Steps& steps) {
  try {
    return steps();
  } catch (const RunTimeError& error) {
    RaiseNamed(where, error);
  }
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_BASE_RAISE_H_
