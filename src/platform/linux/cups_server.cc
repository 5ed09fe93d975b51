#include "platform/linux/cups_server.h"

#include <ZQ7Standard/platform/printers.h>

#include <optional>
#include <system_error>

namespace ZQ7Standard {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kQuestions{5};
constexpr std::chrono::seconds kJob{30};
constexpr double kLookSeconds = 0.05;  // how often a silent server is given up or not

/// The questions that a thread is about to ask.
struct Questions {
  Clock::time_point end;
  bool unreachable = false;
};

thread_local std::optional<Questions> questions;

Clock::time_point EndOf(Purpose purpose) {
  if (purpose == Purpose::kJob) return Clock::now() + kJob;
  return questions ? questions->end : Clock::now() + kQuestions;
}

/// Whether to wait on for a server; `end` is a time point.
int HasTime(http_t* /*server*/, void* end) {
  return Clock::now() < *static_cast<Clock::time_point*>(end) ? 1 : 0;
}

}  // namespace

QuestionTime::QuestionTime() : outermost_(!questions) {
  if (outermost_) questions = Questions{Clock::now() + kQuestions};
}

QuestionTime::~QuestionTime() {
  if (outermost_) questions.reset();
}

NoPassword::NoPassword() {
  cupsSetPasswordCB2(
      [](const char*, http_t*, const char*, const char*, void*) -> const char* { return nullptr; },
      nullptr);
}

NoPassword::~NoPassword() {
  cupsSetPasswordCB2(nullptr, nullptr);
}

CupsServer::CupsServer(Purpose purpose) : end_(EndOf(purpose)) {
  const bool is_question = purpose == Purpose::kQuestion && questions;
  if (is_question && questions->unreachable) return;
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(end_ - Clock::now());
  if (left.count() <= 0) Fail();
  // A handshake has no end before `httpSetTimeout`, so the encryption comes after it.
  const http_encryption_t wanted = cupsEncryption();
  const bool encrypts = wanted == HTTP_ENCRYPTION_REQUIRED || wanted == HTTP_ENCRYPTION_ALWAYS;
  http_.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                           encrypts ? HTTP_ENCRYPTION_IF_REQUESTED : wanted, 1,
                           static_cast<int>(left.count()), nullptr));
  if (!http_ && is_question) questions->unreachable = true;
  if (!http_) return;
  httpSetTimeout(http_.get(), kLookSeconds, HasTime, &end_);
  if (encrypts && httpEncryption(http_.get(), wanted) != 0) Fail();
}

void CupsServer::Fail(http_status_t status) const {
  throw PrinterFailure(ReasonFor(status));
}

std::string CupsServer::ReasonFor(http_status_t status) const {
  if (Clock::now() >= end_) return "the print server did not answer in time";
  if (http_ && httpError(http_.get()) != 0) {
    return std::generic_category().message(httpError(http_.get()));
  }
  if (status == HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED) return "the print server wants a password";
  if (status >= HTTP_STATUS_BAD_REQUEST) return httpStatus(status);
  const char* const said = cupsLastErrorString();
  return said == nullptr ? "the print server gave no reason" : said;
}

}  // namespace ZQ7Standard
