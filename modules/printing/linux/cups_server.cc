#include "printing/linux/cups_server.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/printers.h>

#include <optional>
#include <system_error>

namespace ZQ7Standard {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kQuestions{5};
constexpr std::chrono::seconds kJob{30};
constexpr double kLookSeconds = 0.05;  // how often to check whether to give up on a silent server

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

/// Whether to keep waiting for a server; `end` is a time point.
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
  Connect();
  if (is_question) questions->unreachable = !IsThere();
}

void CupsServer::Connect() {
  // A handshake has no time limit before `httpSetTimeout`, so encryption starts after it.
  const http_encryption_t wanted = cupsEncryption();
  const bool encrypts = wanted == HTTP_ENCRYPTION_REQUIRED || wanted == HTTP_ENCRYPTION_ALWAYS;
  http_.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                           encrypts ? HTTP_ENCRYPTION_IF_REQUESTED : wanted, 1, MillisecondsLeft(),
                           nullptr));
  if (!http_) return;
  httpSetTimeout(http_.get(), kLookSeconds, HasTime, &end_);
  if (encrypts && httpEncryption(http_.get(), wanted) != 0) Fail();
}

/// At least 1: for CUPS, 0 means no limit.
int CupsServer::MillisecondsLeft() const {
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(end_ - Clock::now());
  if (left.count() <= 0) Fail();
  return static_cast<int>(left.count());
}

IppMessage CupsServer::Ask(const IppMessage& request, const std::string& path,
                           std::string_view data) {
  if (!IsThere()) Fail();
  while (true) {
    http_status_t status = Send(request, path, data);
    while (status == HTTP_STATUS_CONTINUE && Clock::now() < end_) status = httpUpdate(http_.get());
    if (status == HTTP_STATUS_OK) return Receive();
    TryOtherwise(status, path);
  }
}

http_status_t CupsServer::Send(const IppMessage& request, const std::string& path,
                               std::string_view data) {
  const std::size_t size = ippLength(request.get()) + data.size();
  const auto status = cupsSendRequest(http_.get(), request.get(), path.c_str(), size);
  if (status != HTTP_STATUS_CONTINUE || data.empty()) return status;
  return cupsWriteRequestData(http_.get(), data.data(), data.size());
}

/// A server's answer. CUPS's own reader would take a short pause for the end.
IppMessage CupsServer::Receive() {
  IppMessage answer(ippNew());
  ipp_state_t state = IPP_STATE_IDLE;
  while (state != IPP_STATE_DATA) {
    state = ippReadIO(this, ReadOn, 1, nullptr, answer.get());
    if (state == IPP_STATE_ERROR) Fail(HTTP_STATUS_ERROR);
  }
  return answer;
}

/// Reads for CUPS until the buffer is full or the time is up.
ssize_t CupsServer::ReadOn(void* server, ipp_uchar_t* buffer, std::size_t size) {
  const auto& self = *static_cast<CupsServer*>(server);
  std::size_t count = 0;
  while (count < size && Clock::now() < self.end_) {
    const ssize_t read =
        httpRead2(self.http_.get(), reinterpret_cast<char*>(buffer) + count, size - count);
    if (read <= 0) break;
    count += static_cast<std::size_t>(read);
  }
  return static_cast<ssize_t>(count);
}

/// Reconnects in the way that `status` asks for, which may include authentication as a user known
/// to this machine. Fails if it asks for something else.
void CupsServer::TryOtherwise(http_status_t status, const std::string& path) {
  httpFlush(http_.get());
  const bool has_way = status == HTTP_STATUS_UPGRADE_REQUIRED ||
                       (status == HTTP_STATUS_UNAUTHORIZED &&
                        cupsDoAuthentication(http_.get(), "POST", path.c_str()) == 0);
  if (!has_way || httpReconnect2(http_.get(), MillisecondsLeft(), nullptr) != 0) Fail(status);
  const bool encrypts = status == HTTP_STATUS_UPGRADE_REQUIRED;
  if (encrypts && httpEncryption(http_.get(), HTTP_ENCRYPTION_REQUIRED) != 0) Fail(status);
}

std::string CupsServer::DefaultPrinter() {
  if (!IsThere()) Fail();
  // CUPS reads the answer itself: a pause may last as long as time is left.
  httpSetTimeout(http_.get(), MillisecondsLeft() / 1000.0, HasTime, &end_);
  const char* const name = cupsGetDefault2(http_.get());
  if (name != nullptr) return name;
  const bool is_answer = cupsLastError() < IPP_STATUS_REDIRECTION_OTHER_SITE ||
                         cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND;
  if (!is_answer) Fail();
  return "";
}

void CupsServer::Fail(http_status_t status) const {
  throw RunTimeError(Error::kPrinterError, ReasonFor(status));
}

std::string CupsServer::ReasonFor(http_status_t status) const {
  if (Clock::now() >= end_) return "the print server did not answer in time";
  if (status == HTTP_STATUS_UNAUTHORIZED || status == HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED) {
    return "the print server wants a password";
  }
  if (http_ && httpError(http_.get()) != 0) {
    return std::generic_category().message(httpError(http_.get()));
  }
  if (status == HTTP_STATUS_ERROR) return "the answer of the print server cannot be read";
  if (status != HTTP_STATUS_NONE) return httpStatus(status);
  const char* const said = cupsLastErrorString();
  return said == nullptr ? "the print server gave no reason" : said;
}

}  // namespace ZQ7Standard
