#ifndef ZQ7STANDARD_BINDINGS_C_FAILURES_H_
#define ZQ7STANDARD_BINDINGS_C_FAILURES_H_

#include <zq7standard.h>

#include <string_view>

/// No exception crosses the C interface: one that reaches it becomes the error of the thread, and a
/// failure of a host's function becomes an exception.
namespace ZQ7C {

/// Raises 5 with what the caller did wrong.
[[noreturn]] void RaiseWrongUse(std::string_view wrong);

inline void Require(bool met, std::string_view wrong) {
  if (!met) RaiseWrongUse(wrong);
}

/// Keeps the exception being handled for `zq7_last_error`.
void KeepCurrentException() noexcept;

/// Runs `call`; an exception becomes the thread's error.
template <typename Call>
zq7_status Guarded(const Call& call) noexcept {
  try {
    call();
    return ZQ7_OK;
  } catch (...) {
    KeepCurrentException();
    return ZQ7_FAILED;
  }
}

/// Calls a host's function. Raises what it told `zq7_fail` if it fails, 440 if it told nothing.
void ForgetToldFailure() noexcept;
[[noreturn]] void RaiseToldFailure();

template <typename Function, typename... Arguments>
void CallHost(Function function, Arguments... arguments) {
  ForgetToldFailure();
  if (function(arguments...) != ZQ7_OK) RaiseToldFailure();
}

}  // namespace ZQ7C

#endif  // ZQ7STANDARD_BINDINGS_C_FAILURES_H_
