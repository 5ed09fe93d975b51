#include <ZQ7Standard/RunTimeError.h>

#include <string>

namespace ZQ7Standard {

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

RunTimeError RunTimeError::CannotCreateObject(std::string_view operation, std::string_view input) {
  return {429, "cannot create object", operation, input};
}

}  // namespace ZQ7Standard
