#ifndef ZQ7STANDARD_RUNTIMEERROR_H_
#define ZQ7STANDARD_RUNTIMEERROR_H_

#include <ZQ7Standard/Export.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// An error that reaches the host: a run-time error number and a text in
/// UTF-8 that names the operation and the input it could not take, such as
/// `CTDATE: type mismatch (error 13): "1/15/2567"`.
///
/// Most operations answer bad input with a fallback value instead; those that
/// raise say so beside their declaration.
class ZQ7STANDARD_EXPORT RunTimeError : public std::runtime_error {
 public:
  /// 5, invalid procedure call or argument: a value outside an operation's range.
  static RunTimeError InvalidArgument(std::string_view operation, std::string_view input);
  /// 6, overflow: a number that its type cannot hold.
  static RunTimeError Overflow(std::string_view operation, std::string_view input);
  /// 7, out of memory: a size that the machine cannot hold.
  static RunTimeError OutOfMemory(std::string_view operation, std::string_view input);
  /// 9, subscript out of range: a part of the input that is not there.
  static RunTimeError SubscriptOutOfRange(std::string_view operation, std::string_view input);
  /// 11, division by zero: a part of the input that is empty and may not be.
  static RunTimeError DivisionByZero(std::string_view operation, std::string_view input);
  /// 13, type mismatch: a text that does not read as the type wanted.
  static RunTimeError TypeMismatch(std::string_view operation, std::string_view input);
  /// 53, file not found.
  static RunTimeError FileNotFound(std::string_view operation, std::string_view input);
  /// 57, device I/O error: a read or write that the device failed.
  static RunTimeError DeviceIoError(std::string_view operation, std::string_view input);
  /// 61, disk full.
  static RunTimeError DiskFull(std::string_view operation, std::string_view input);
  /// 70, permission denied: no right to it, or it is read-only or in use.
  static RunTimeError PermissionDenied(std::string_view operation, std::string_view input);
  /// 75, path/file access error: a path that cannot be used this way, such as a folder
  /// opened as a file.
  static RunTimeError PathFileAccess(std::string_view operation, std::string_view input);
  /// 76, path not found: a folder of the path is not there.
  static RunTimeError PathNotFound(std::string_view operation, std::string_view input);
  /// 429, cannot create object: a component that the operation needs is not there.
  static RunTimeError CannotCreateObject(std::string_view operation, std::string_view input);
  /// 438, object doesn't support this property or method.
  static RunTimeError UnsupportedMember(std::string_view operation, std::string_view input);
  /// 448, named argument not found.
  static RunTimeError NamedArgumentNotFound(std::string_view operation, std::string_view input);
  /// 449, argument not optional: one that has no default was left out.
  static RunTimeError ArgumentNotOptional(std::string_view operation, std::string_view input);
  /// 450, wrong number of arguments.
  static RunTimeError WrongNumberOfArguments(std::string_view operation, std::string_view input);
  /// 482, printer error: `input` is what the print system said.
  static RunTimeError PrinterError(std::string_view operation, std::string_view input);

  /// A failure that a service of the host's own names by its own number and text, which
  /// is all of `what()`.
  RunTimeError(int number, const std::string& description);

  /// The run-time error number.
  int Number() const noexcept { return number_; }

 private:
  RunTimeError(int number, std::string_view meaning, std::string_view operation,
               std::string_view input);

  int number_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_RUNTIMEERROR_H_
