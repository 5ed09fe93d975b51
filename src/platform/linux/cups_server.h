#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_CUPS_SERVER_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_CUPS_SERVER_H_

#include <cups/cups.h>

#include <chrono>
#include <cstdint>
#include <string>

#include "platform/linux/handle.h"

namespace ZQ7Standard {

/// While one is there, the questions that its thread asks the print server have 5
/// seconds together, and a server that was not reached is not looked for again. Without
/// one each question has 5 seconds of its own. One inside another changes nothing.
class QuestionTime {
 public:
  QuestionTime();
  QuestionTime(const QuestionTime&) = delete;
  QuestionTime& operator=(const QuestionTime&) = delete;
  ~QuestionTime();

 private:
  bool outermost_;
};

/// What a connection is for, which says how long it may last.
enum class Purpose : std::uint8_t {
  kQuestion,  ///< as long as `QuestionTime` says
  kJob,       ///< 30 seconds
};

/// While one is there, CUPS asks nobody for a password on this thread; afterwards it
/// asks on the terminal, as it does of itself.
struct NoPassword {
  NoPassword();
  NoPassword(const NoPassword&) = delete;
  NoPassword& operator=(const NoPassword&) = delete;
  ~NoPassword();
};

/// A connection to the print server that the environment names.
class CupsServer {
 public:
  /// Raises a `PrinterFailure` when there is no time left, or the server does not do the
  /// encryption that is required.
  explicit CupsServer(Purpose purpose);
  CupsServer(const CupsServer&) = delete;  // CUPS keeps the address of `end_`
  CupsServer& operator=(const CupsServer&) = delete;
  ~CupsServer() = default;

  /// Null where no server was reached.
  http_t* Http() const { return http_.get(); }

  /// Raises a `PrinterFailure` that says why the last request, or its step that ended
  /// with `status`, failed.
  [[noreturn]] void Fail(http_status_t status = HTTP_STATUS_NONE) const;

 private:
  using TimePoint = std::chrono::steady_clock::time_point;

  std::string ReasonFor(http_status_t status) const;

  NoPassword no_password_;
  TimePoint end_;
  Handle<http_t, httpClose> http_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_CUPS_SERVER_H_
