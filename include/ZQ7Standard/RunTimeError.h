#ifndef ZQ7STANDARD_RUNTIMEERROR_H_
#define ZQ7STANDARD_RUNTIMEERROR_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// The run-time error numbers of the library; docs/errors.md says what raises each.
enum class Error : std::int32_t {
  kInvalidArgument = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscriptOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kFileNotFound = 53,
  kDeviceIoError = 57,
  kDiskFull = 61,
  kDeviceUnavailable = 68,
  kPermissionDenied = 70,
  kPathFileAccess = 75,
  kPathNotFound = 76,
  kObjectNotSet = 91,
  kInvalidPropertyValue = 380,
  kCannotCreateObject = 429,
  kUnsupportedMember = 438,
  kAutomationError = 440,
  kNamedArgumentNotFound = 448,
  kArgumentNotOptional = 449,
  kWrongNumberOfArguments = 450,
  kInvalidPicture = 481,
  kPrinterError = 482,
  kNoSuchPort = 8002,
  kPortAlreadyOpen = 8005,
  kPortNotOpen = 8018,
  kWriteFailed = 8020,
};

/// An error number and what it means.
struct ErrorInfo {
  Error error;
  std::string_view name;  ///< such as "TypeMismatch"
  std::string_view text;  ///< such as "type mismatch"
};

/// Returns all of them by number.
ZQ7STANDARD_EXPORT std::span<const ErrorInfo> Errors();

/// The parts of an error. Names are empty if not known; all but the input are UTF-8.
struct ErrorDetails {
  int number = 0;
  std::string text = {};                     ///< what happened: "type mismatch"
  std::string class_name = {};               ///< of the object, if a host called by name
  std::string operation = {};                ///< that the host called
  std::string parameter = {};                ///< the one whose argument is wrong
  std::optional<Text> input = std::nullopt;  ///< that argument, whole
};

/// An error that reaches the host. `what()` names the operation, the argument and the
/// input, in UTF-8 on one line: `CTDATE: type mismatch (error 13): iText: "1/15/2567"`. An
/// input is cut there after 100 characters, with its control characters and quotation
/// marks escaped, so that it can stand in a log.
///
/// Services raise it with a number and a text alone, and the text is then all of
/// `what()`; the class adds the rest. Most operations answer bad input with a fallback
/// value instead; those that raise say so beside their declaration.
class ZQ7STANDARD_EXPORT RunTimeError : public std::runtime_error {
 public:
  /// The error with its usual text, followed by `detail` if it is not empty.
  explicit RunTimeError(Error error, std::string_view detail = {});
  /// A failure with a number and a text of the host's own.
  RunTimeError(int number, std::string_view text);
  explicit RunTimeError(ErrorDetails details);
  RunTimeError(const RunTimeError&) noexcept = default;
  RunTimeError& operator=(const RunTimeError&) noexcept = default;
  ~RunTimeError() override;

  int Number() const noexcept { return details_->number; }
  const ErrorDetails& Details() const noexcept { return *details_; }

 private:
  std::shared_ptr<const ErrorDetails> details_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_RUNTIMEERROR_H_
