#ifndef ZQ7STANDARD_BINDINGS_PYTHON_MODULE_ERRORS_H_
#define ZQ7STANDARD_BINDINGS_PYTHON_MODULE_ERRORS_H_

#include <ZQ7Standard/RunTimeError.h>

#include <exception>
#include <type_traits>
#include <utility>

#include "python.h"

namespace ZQ7Python {

/// Makes the exception that is being handled the Python error.
void SetPythonError();

/// Runs `call`; returns its result, or the default of its type with the Python error set.
template <typename Call>
auto CatchAll(const Call& call) noexcept -> std::invoke_result_t<Call> {
  try {
    return call();
  } catch (...) {
    SetPythonError();
    return {};
  }
}

/// A call of the library. What Python code raises inside it cannot cross the library as it is, so
/// the innermost call keeps it.
class LibraryCall {
 public:
  LibraryCall();
  ~LibraryCall();
  LibraryCall(const LibraryCall&) = delete;
  LibraryCall& operator=(const LibraryCall&) = delete;

  /// Keeps the Python error for the innermost call of this thread, unless it has one, and throws a
  /// `RunTimeError` in its place: the number of one raised by Python code, else 440.
  [[noreturn]] static void Keep(py::error_already_set& error);

  /// Throws a kept error, unless it is a RunTimeError: the library answers such a one, like those of
  /// its own services, by a result or a message.
  void RaiseKept();
  /// Throws the kept error if it is what the call failed with.
  void RaiseKept(const ZQ7Standard::RunTimeError& failure);

 private:
  LibraryCall* outer_;
  py::object error_;
  int number_ = 0;  // of a kept RunTimeError, else 0
};

/// Runs Python code for the library, on any thread.
template <typename Code>
auto InPython(const Code& code) -> std::invoke_result_t<Code> {
  const py::gil_scoped_acquire lock;
  try {
    return code();
  } catch (py::error_already_set& error) {
    LibraryCall::Keep(error);
  } catch (const py::builtin_exception& problem) {
    problem.set_error();
    py::error_already_set error;
    LibraryCall::Keep(error);
  }
}

/// Runs a call of the library, without the interpreter's lock if `may_block`.
template <typename Call>
auto InLibrary(bool may_block, const Call& call) -> std::invoke_result_t<Call> {
  LibraryCall current;
  try {
    auto result = [&] {
      if (!may_block) return call();
      const py::gil_scoped_release unlocked;
      return call();
    }();
    current.RaiseKept();
    return result;
  } catch (const ZQ7Standard::RunTimeError& failure) {
    current.RaiseKept(failure);
    throw;
  }
}

}  // namespace ZQ7Python

#endif  // ZQ7STANDARD_BINDINGS_PYTHON_MODULE_ERRORS_H_
