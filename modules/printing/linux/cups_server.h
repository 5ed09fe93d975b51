#ifndef ZQ7STANDARD_MODULES_PRINTING_LINUX_CUPS_SERVER_H_
#define ZQ7STANDARD_MODULES_PRINTING_LINUX_CUPS_SERVER_H_

#include <cups/cups.h>

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "handle.h"

namespace ZQ7Standard {

/// A request to a print server, or its answer.
using IppMessage = Handle<ipp_t, ippDelete>;

/// As long as one exists, the questions of its thread to the print server share 5 seconds, and a
/// server that was not reached is not tried again. Without one each question has 5 seconds of its
/// own. Nesting has no effect.
class QuestionTime {
 public:
  QuestionTime();
  QuestionTime(const QuestionTime&) = delete;
  QuestionTime& operator=(const QuestionTime&) = delete;
  ~QuestionTime();

 private:
  bool outermost_;
};

/// The purpose of a connection, which decides how long it may last.
enum class Purpose : std::uint8_t {
  kQuestion,  ///< as long as `QuestionTime` says
  kJob,       ///< 30 seconds
};

/// As long as one exists, CUPS asks nobody for a password on this thread; afterwards it asks on the
/// terminal, as it does by default.
struct NoPassword {
  NoPassword();
  NoPassword(const NoPassword&) = delete;
  NoPassword& operator=(const NoPassword&) = delete;
  ~NoPassword();
};

/// A connection to the environment's print server. Failures, including time running out, raise
/// error 482.
class CupsServer {
 public:
  explicit CupsServer(Purpose purpose);
  CupsServer(const CupsServer&) = delete;  // CUPS keeps the address of `end_`
  CupsServer& operator=(const CupsServer&) = delete;
  ~CupsServer() = default;

  /// Whether a server was reached. If not, all other calls raise.
  bool IsThere() const { return http_ != nullptr; }

  /// The answer to `request` and the `data` after it, sent to `path`; it may be a refusal.
  IppMessage Ask(const IppMessage& request, const std::string& path, std::string_view data = {});

  /// The default printer of the user or the server; empty if there is none.
  std::string DefaultPrinter();

 private:
  using TimePoint = std::chrono::steady_clock::time_point;

  static ssize_t ReadOn(void* server, ipp_uchar_t* buffer, std::size_t size);
  int MillisecondsLeft() const;
  void Connect();
  http_status_t Send(const IppMessage& request, const std::string& path, std::string_view data);
  IppMessage Receive();
  void TryOtherwise(http_status_t status, const std::string& path);
  [[noreturn]] void Fail(http_status_t status = HTTP_STATUS_NONE) const;
  std::string ReasonFor(http_status_t status) const;

  NoPassword no_password_;
  TimePoint end_;
  Handle<http_t, httpClose> http_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_PRINTING_LINUX_CUPS_SERVER_H_
