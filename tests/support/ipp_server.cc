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

/// A printer of two papers that has words where numbers belong.
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

}  // namespace

IppServer::IppServer() : listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in address = Loopback();
  bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof address);
  listen(listener_, 9);
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

void IppServer::Run() {
  std::array<pollfd, 2> waiting = {pollfd{listener_, POLLIN, 0}, pollfd{stop_[0], POLLIN, 0}};
  while (poll(waiting.data(), waiting.size(), -1) > 0 && waiting[1].revents == 0) {
    http_t* const client = httpAcceptConnection(listener_, 1);
    if (client != nullptr) Serve(client);
    httpClose(client);
  }
}

void IppServer::Serve(http_t* client) {
  std::array<char, HTTP_MAX_URI> path{};
  while (httpReadRequest(client, path.data(), path.size()) == HTTP_STATE_POST) {
    while (httpUpdate(client) == HTTP_STATUS_CONTINUE) continue;
    if (httpGetExpect(client) == HTTP_STATUS_CONTINUE) {
      httpWriteResponse(client, HTTP_STATUS_CONTINUE);
    }
    ipp_t* const request = ippNew();
    while (ippRead(client, request) == IPP_STATE_ATTRIBUTE) continue;
    if (ippGetState(request) == IPP_STATE_DATA) Answer(client, request);
    ippDelete(request);
  }
}

void IppServer::Answer(http_t* client, ipp_t* request) {
  std::array<char, 4096> data;
  while (httpRead2(client, data.data(), data.size()) > 0) continue;
  if (ippGetOperation(request) == IPP_OP_PRINT_JOB) {
    for (auto* at = ippFirstAttribute(request); at != nullptr; at = ippNextAttribute(request)) {
      if (ippGetGroupTag(at) == IPP_TAG_JOB) job_attributes_ += ippGetName(at) + std::string(" ");
    }
  }
  ipp_t* const answer = ippNewResponse(request);
  Describe(answer);
  httpClearFields(client);
  httpSetField(client, HTTP_FIELD_CONTENT_TYPE, "application/ipp");
  httpSetLength(client, ippLength(answer));
  httpWriteResponse(client, HTTP_STATUS_OK);
  ippWrite(client, answer);
  httpFlushWrite(client);
  ippDelete(answer);
}

}  // namespace ZQ7Standard
