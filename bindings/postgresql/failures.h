#ifndef ZQ7STANDARD_BINDINGS_POSTGRESQL_FAILURES_H_
#define ZQ7STANDARD_BINDINGS_POSTGRESQL_FAILURES_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <stdexcept>
#include <string>
#include <string_view>

#include "plain.h"

namespace ZQ7PostgreSQL {

// The SQLSTATEs of failures without a number of the library's.
inline constexpr std::string_view kCharacterNotInRepertoire = "22021";
inline constexpr std::string_view kProgramLimitExceeded = "54000";

/// A failure with an SQLSTATE of its own, which must last.
class Refused : public std::runtime_error {
 public:
  Refused(std::string_view state, const std::string& text)
      : std::runtime_error(text), state_(state) {}

  std::string_view State() const { return state_; }

 private:
  std::string_view state_;
};

/// The SQLSTATE of a run-time error number.
std::string_view StateOf(int number);

/// The exception being handled, raised by that operation, as a failure. Its texts last until the
/// next one.
Failure CurrentFailure(const ZQ7Standard::Automation::ClassInfo& owner,
                       const ZQ7Standard::Automation::OperationInfo& operation) noexcept;

}  // namespace ZQ7PostgreSQL

#endif  // ZQ7STANDARD_BINDINGS_POSTGRESQL_FAILURES_H_
