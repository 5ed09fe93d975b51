#include <ZQ7Standard/RunTimeError.h>

namespace ZQ7Standard {

RunTimeError::RunTimeError(int number, const std::string& description)
    : std::runtime_error(description), number_(number) {}

RunTimeError::RunTimeError(int number, std::string_view meaning, std::string_view operation,
                           std::string_view input)
    : std::runtime_error(std::string(operation)
                             .append(": ")
                             .append(meaning)
                             .append(" (error ")
                             .append(std::to_string(number))
                             .append("): ")
                             .append(input)),
      number_(number) {}

RunTimeError RunTimeError::InvalidArgument(std::string_view operation, std::string_view input) {
  return {5, "invalid procedure call or argument", operation, input};
}

RunTimeError RunTimeError::Overflow(std::string_view operation, std::string_view input) {
  return {6, "overflow", operation, input};
}

RunTimeError RunTimeError::OutOfMemory(std::string_view operation, std::string_view input) {
  return {7, "out of memory", operation, input};
}

RunTimeError RunTimeError::SubscriptOutOfRange(std::string_view operation, std::string_view input) {
  return {9, "subscript out of range", operation, input};
}

RunTimeError RunTimeError::DivisionByZero(std::string_view operation, std::string_view input) {
  return {11, "division by zero", operation, input};
}

RunTimeError RunTimeError::TypeMismatch(std::string_view operation, std::string_view input) {
  return {13, "type mismatch", operation, input};
}

RunTimeError RunTimeError::FileNotFound(std::string_view operation, std::string_view input) {
  return {53, "file not found", operation, input};
}

RunTimeError RunTimeError::DeviceIoError(std::string_view operation, std::string_view input) {
  return {57, "device I/O error", operation, input};
}

RunTimeError RunTimeError::DiskFull(std::string_view operation, std::string_view input) {
  return {61, "disk full", operation, input};
}

RunTimeError RunTimeError::PermissionDenied(std::string_view operation, std::string_view input) {
  return {70, "permission denied", operation, input};
}

RunTimeError RunTimeError::PathFileAccess(std::string_view operation, std::string_view input) {
  return {75, "path/file access error", operation, input};
}

RunTimeError RunTimeError::PathNotFound(std::string_view operation, std::string_view input) {
  return {76, "path not found", operation, input};
}

RunTimeError RunTimeError::CannotCreateObject(std::string_view operation, std::string_view input) {
  return {429, "cannot create object", operation, input};
}

RunTimeError RunTimeError::UnsupportedMember(std::string_view operation, std::string_view input) {
  return {438, "object doesn't support this property or method", operation, input};
}

RunTimeError RunTimeError::NamedArgumentNotFound(std::string_view operation,
                                                 std::string_view input) {
  return {448, "named argument not found", operation, input};
}

RunTimeError RunTimeError::ArgumentNotOptional(std::string_view operation, std::string_view input) {
  return {449, "argument not optional", operation, input};
}

RunTimeError RunTimeError::WrongNumberOfArguments(std::string_view operation,
                                                  std::string_view input) {
  return {450, "wrong number of arguments", operation, input};
}

RunTimeError RunTimeError::PrinterError(std::string_view operation, std::string_view input) {
  return {482, "printer error", operation, input};
}

}  // namespace ZQ7Standard
