#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <array>
#include <utility>

#include "base/raise.h"
#include "base/unicode.h"

namespace ZQ7Standard {
namespace {

constexpr auto kErrors = std::to_array<ErrorInfo>({
    {Error::kInvalidArgument, "InvalidArgument", "invalid procedure call or argument"},
    {Error::kOverflow, "Overflow", "overflow"},
    {Error::kOutOfMemory, "OutOfMemory", "out of memory"},
    {Error::kSubscriptOutOfRange, "SubscriptOutOfRange", "subscript out of range"},
    {Error::kDivisionByZero, "DivisionByZero", "division by zero"},
    {Error::kTypeMismatch, "TypeMismatch", "type mismatch"},
    {Error::kFileNotFound, "FileNotFound", "file not found"},
    {Error::kDeviceIoError, "DeviceIoError", "device I/O error"},
    {Error::kDiskFull, "DiskFull", "disk full"},
    {Error::kDeviceUnavailable, "DeviceUnavailable", "device unavailable"},
    {Error::kPermissionDenied, "PermissionDenied", "permission denied"},
    {Error::kPathFileAccess, "PathFileAccess", "path/file access error"},
    {Error::kPathNotFound, "PathNotFound", "path not found"},
    {Error::kObjectNotSet, "ObjectNotSet", "object variable not set"},
    {Error::kInvalidPropertyValue, "InvalidPropertyValue", "invalid property value"},
    {Error::kCannotCreateObject, "CannotCreateObject", "cannot create object"},
    {Error::kUnsupportedMember, "UnsupportedMember",
     "object doesn't support this property or method"},
    {Error::kAutomationError, "AutomationError", "automation error"},
    {Error::kNamedArgumentNotFound, "NamedArgumentNotFound", "named argument not found"},
    {Error::kArgumentNotOptional, "ArgumentNotOptional", "argument not optional"},
    {Error::kWrongNumberOfArguments, "WrongNumberOfArguments", "wrong number of arguments"},
    {Error::kInvalidPicture, "InvalidPicture", "invalid picture"},
    {Error::kPrinterError, "PrinterError", "printer error"},
    {Error::kNoSuchPort, "NoSuchPort", "no such port"},
    {Error::kPortAlreadyOpen, "PortAlreadyOpen", "port already open"},
    {Error::kPortNotOpen, "PortNotOpen", "port not open"},
    {Error::kWriteFailed, "WriteFailed", "write failed"},
});
static_assert(std::ranges::is_sorted(kErrors, {}, &ErrorInfo::error));

/// The same, without a pass over UTF-16 for the plain texts that nearly all are.
std::string OnOneLine(std::string_view text) {
  const bool is_plain = std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
  return is_plain ? std::string(text) : ZQ7Standard::OnOneLine(FromUtf8(text));
}

/// "StandardObject.CTDATE", or as much of it as is known.
std::string CalledName(const ErrorDetails& details) {
  const bool both = !details.class_name.empty() && !details.operation.empty();
  return details.class_name + (both ? "." : "") + details.operation;
}

std::string MessageOf(const ErrorDetails& details) {
  std::string message = CalledName(details);
  if (message.empty()) {
    message = details.text;
  } else {
    message.append(": ").append(OnOneLine(details.text));
    message.append(" (error ").append(std::to_string(details.number)).append(")");
  }
  if (!details.parameter.empty()) message.append(": ").append(details.parameter);
  if (details.input) message.append(": ").append(Quoted(*details.input));
  return message;
}

}  // namespace

ErrorDetails DetailsOf(Error error, std::string_view detail) {
  ErrorDetails details = {.number = static_cast<int>(error)};
  const auto row = std::ranges::find(kErrors, error, &ErrorInfo::error);
  if (row != kErrors.end()) details.text = row->text;
  if (!detail.empty()) details.text.append(details.text.empty() ? "" : ": ").append(detail);
  return details;
}

std::span<const ErrorInfo> Errors() {
  return kErrors;
}

// Defined here so that a module and the core share one type.
RunTimeError::~RunTimeError() = default;

RunTimeError::RunTimeError(ErrorDetails details)
    : std::runtime_error(MessageOf(details)),
      details_(std::make_shared<const ErrorDetails>(std::move(details))) {}

RunTimeError::RunTimeError(Error error, std::string_view detail)
    : RunTimeError(DetailsOf(error, detail)) {}

RunTimeError::RunTimeError(int number, std::string_view text)
    : RunTimeError(ErrorDetails{.number = number, .text = std::string(text)}) {}

}  // namespace ZQ7Standard
