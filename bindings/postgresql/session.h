#ifndef ZQ7STANDARD_BINDINGS_POSTGRESQL_SESSION_H_
#define ZQ7STANDARD_BINDINGS_POSTGRESQL_SESSION_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <cstdint>
#include <span>
#include <string_view>

#include "plain.h"

/// What a backend keeps: the objects that rows call, the convention that is set, and the memory of
/// the last result. No function throws, and none calls the server.
namespace ZQ7PostgreSQL {

/// A function of the extension. Filled with the catalogue's data at its first call.
struct Function {
  const char* class_name;
  int number;  ///< of the operation in the class
  /// Whether the first argument is the name of a convention, which takes the place of the setting.
  bool by_convention = false;
  const ZQ7Standard::Automation::ClassInfo* owner = nullptr;
  const ZQ7Standard::Automation::OperationInfo* operation = nullptr;
};

/// Fills a function; returns false if the catalogue cannot be made for lack of memory, or does not
/// have the operation.
bool Find(Function& function) noexcept;

/// Calls a function that was found. `now` is the clock in microseconds since 2000-01-01, local.
Outcome Run(const Function& function, std::span<const Plain> arguments, std::int64_t now) noexcept;

/// Gives back the memory of long texts of the last call, whose result is then gone.
void ReleaseLongTexts() noexcept;

/// The names of the date conventions, and that of a session that has set none.
inline constexpr const char* kConventions = "mdy, dmy, mdy-buddhist, dmy-buddhist";
inline constexpr const char* kDefaultConvention = "dmy-buddhist";

/// Whether there is a convention of that name, and one that there is for the session.
bool IsConvention(std::string_view name) noexcept;
void SetConvention(std::string_view name) noexcept;

}  // namespace ZQ7PostgreSQL

#endif  // ZQ7STANDARD_BINDINGS_POSTGRESQL_SESSION_H_
