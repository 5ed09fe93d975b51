#ifndef ZQ7STANDARD_MODULES_PRINTING_LINUX_CUPS_SERVER_H_
#define ZQ7STANDARD_MODULES_PRINTING_LINUX_CUPS_SERVER_H_

#include <cups/cups.h>

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "printing/handle.h"

namespace ZQ7Standard {

/// A request to a print server, or its answer.
using IppMessage = Handle<ipp_t, ippDelete>;

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

/// A connection to the print server that the environment names. What fails raises a
/// error 482, a connection whose time is up included.
class CupsServer {
 public:
  explicit CupsServer(Purpose purpose);
  CupsServer(const CupsServer&) = delete;  // CUPS keeps the address of `end_`
  CupsServer& operator=(const CupsServer&) = delete;
  ~CupsServer() = default;

  /// Whether a server was reached. What follows raises where none was.
  bool IsThere() const { return http_ != nullptr; }

  /// The answer to `request` and the `data` after it, sent to `path`; it may be a refusal.
  IppMessage Ask(const IppMessage& request, const std::string& path, std::string_view data = {});

  /// The default printer of the user or the server; empty when there is none.
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
