#include "tests/support/ipp_server.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

namespace ZQ7Standard {
namespace {

sockaddr_in Loopback() {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

/// A printer with two papers that answers words where numbers belong.
void Describe(ipp_t* answer) {
  const auto words = [answer](const char* attribute, const char* word) {
    ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, attribute, nullptr, word);
  };
  ippAddString(answer, IPP_TAG_PRINTER, IPP_TAG_NAME, "printer-name", nullptr, "Odd");
  words("media-default", "iso_a5_148x210mm");
  words("media-supported", "iso_a4_210x297mm");
  words("orientation-requested-default", "landscape");
  words("print-quality-default", "draft");
}

std::string AttributesOf(ipp_t* job) {
  std::string names;
  for (auto* at = ippFirstAttribute(job); at != nullptr; at = ippNextAttribute(job)) {
    if (ippGetGroupTag(at) == IPP_TAG_JOB) names += ippGetName(at) + std::string(" ");
  }
  return names;
}

void Refuse(http_t* client) {
  httpClearFields(client);
  httpSetField(client, HTTP_FIELD_WWW_AUTHENTICATE, "Basic realm=\"odd\"");
  httpSetLength(client, 0);
  httpWriteResponse(client, HTTP_STATUS_UNAUTHORIZED);
}

}  // namespace

IppServer::IppServer(Fault fault)
    : fault_(fault), listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in address = Loopback();
  bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof address);
  listen(listener_, fault == Fault::kIsOutOfReach ? 0 : 9);
  if (fault == Fault::kIsOutOfReach) FillQueue();
  pipe(stop_);
  thread_ = std::thread([this] { Run(); });
}

IppServer::~IppServer() {
  close(stop_[1]);
  thread_.join();
  close(stop_[0]);
  close(listener_);
}

std::string IppServer::Address() const {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
  return "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
}

/// Leaves no room for another connection, so that the system drops the next.
void IppServer::FillQueue() {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size);
  for (int i = 0; i < 4; ++i) {
    waiting_.emplace_back(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    connect(waiting_.back().Number(), reinterpret_cast<sockaddr*>(&address), size);
  }
}

/// Waits for that time, -1 for ever; returns whether the server continues.
bool IppServer::Wait(int milliseconds) const {
  pollfd stop{stop_[0], POLLIN, 0};
  return poll(&stop, 1, milliseconds) == 0;
}

void IppServer::Run() {
  if (fault_ == Fault::kIsOutOfReach) Wait(-1);
  std::array<pollfd, 2> waiting = {pollfd{listener_, POLLIN, 0}, pollfd{stop_[0], POLLIN, 0}};
  while (poll(waiting.data(), waiting.size(), -1) > 0 && waiting[1].revents == 0) {
    http_t* const client = httpAcceptConnection(listener_, 1);
    ++connections_;
    if (client != nullptr && fault_ != Fault::kHangsUp) Serve(client);
    httpClose(client);
  }
}

void IppServer::Serve(http_t* client) {
  if (fault_ == Fault::kIsSilent) Wait(-1);
  for (int i = 0; fault_ == Fault::kDribbles && i < 100 && Wait(200); ++i) {
    send(httpGetFd(client), "H", 1, MSG_NOSIGNAL);
  }
  std::array<char, HTTP_MAX_URI> path{};
  while (httpReadRequest(client, path.data(), path.size()) == HTTP_STATE_POST) {
    while (httpUpdate(client) == HTTP_STATUS_CONTINUE) continue;
    if (httpGetExpect(client) == HTTP_STATUS_CONTINUE) {
      httpWriteResponse(client, HTTP_STATUS_CONTINUE);
    }
    ipp_t* const request = ippNew();
    while (ippRead(client, request) == IPP_STATE_ATTRIBUTE) continue;
    const bool goes_on = ippGetState(request) == IPP_STATE_DATA && Answer(client, request);
    ippDelete(request);
    if (!goes_on) return;
  }
}

/// Sends a description of the printer.
void IppServer::Send(http_t* client, ipp_t* request) const {
  ipp_t* const answer = ippNewResponse(request);
  Describe(answer);
  httpClearFields(client);
  httpSetField(client, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
  httpSetLength(client, ippLength(answer));
  httpWriteResponse(client, HTTP_STATUS_OK);
  if (fault_ == Fault::kPauses && httpFlushWrite(client) >= 0) Wait(300);
  ippWrite(client, answer);
  httpFlushWrite(client);
  ippDelete(answer);
}

/// Answers a request whose attributes have been read. Returns whether it keeps the connection.
bool IppServer::Answer(http_t* client, ipp_t* request) {
  const bool is_job = ippGetOperation(request) == IPP_OP_PRINT_JOB;
  if (is_job && fault_ == Fault::kStallsInJob) Wait(-1);
  if (is_job && (fault_ == Fault::kStallsInJob || fault_ == Fault::kDiesInJob)) return false;
  std::array<char, 4096> data;
  while (httpRead2(client, data.data(), data.size()) > 0) continue;
  if (is_job) job_attributes_ += AttributesOf(request);
  if (is_job && fault_ == Fault::kStallsAfterJob) return Wait(-1);
  if (fault_ == Fault::kIsSlow && !Wait(2'000)) return false;
  const bool guards = fault_ == Fault::kWantsPassword || (is_job && fault_ == Fault::kGuardsJobs);
  guards ? Refuse(client) : Send(client, request);
  return true;
}

}  // namespace ZQ7Standard
