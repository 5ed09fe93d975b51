#include "platform/linux/name_lookup.h"

#include <ZQ7Standard/RunTimeError.h>
#include <netdb.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <mutex>

namespace ZQ7Standard {
namespace {

using Clock = std::chrono::steady_clock;

/// A question to the name service, which the C library asks on a thread of its own.
class Lookup {
 public:
  Lookup(std::string host, std::uint16_t port, int flags)
      : host_(std::move(host)), port_(std::to_string(port)) {
    hints_.ai_family = AF_UNSPEC;
    hints_.ai_socktype = SOCK_DGRAM;
    hints_.ai_flags = AI_NUMERICSERV | flags;
    request_.ar_name = host_.c_str();
    request_.ar_service = port_.c_str();
    request_.ar_request = &hints_;
  }
  Lookup(const Lookup&) = delete;
  Lookup& operator=(const Lookup&) = delete;
  ~Lookup() {
    if (request_.ar_result != nullptr) freeaddrinfo(request_.ar_result);
  }

  /// Asks on this thread.
  int Ask() { return getaddrinfo(host_.c_str(), port_.c_str(), &hints_, &request_.ar_result); }

  /// Asks until the deadline; then EAI_INPROGRESS or EAI_CANCELED.
  int AskUntil(Clock::time_point deadline) {
    gaicb* request = &request_;
    const int refused = getaddrinfo_a(GAI_NOWAIT, &request, 1, nullptr);
    if (refused != 0) return refused;
    while (IsBusy() && Clock::now() < deadline) {
      const auto left = deadline - Clock::now();
      const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(left);
      const std::chrono::nanoseconds rest = left - seconds;
      const timespec limit = {seconds.count(), std::max<long>(rest.count(), 0)};
      const gaicb* const awaited = &request_;
      gai_suspend(&awaited, 1, &limit);
    }
    if (IsBusy()) gai_cancel(&request_);
    return gai_error(&request_);
  }

  /// Whether the C library still uses the request.
  bool IsBusy() { return gai_error(&request_) == EAI_INPROGRESS; }

  std::vector<SocketAddress> Found() const {
    std::vector<SocketAddress> found;
    for (const addrinfo* info = request_.ar_result; info != nullptr; info = info->ai_next) {
      SocketAddress& address = found.emplace_back();
      address.size = info->ai_addrlen;
      std::memcpy(&address.storage, info->ai_addr, info->ai_addrlen);
    }
    return found;
  }

 private:
  std::string host_;
  std::string port_;
  addrinfo hints_{};
  gaicb request_{};
};

/// Keeps a lookup that nobody waits for any more until the C library has done with it.
void Keep(std::unique_ptr<Lookup> lookup) {
  static std::mutex mutex;
  // Never destroyed: at the end of the process lookups may still be busy.
  static auto& kept = *new std::vector<std::unique_ptr<Lookup>>();
  const std::lock_guard lock(mutex);
  std::erase_if(kept, [](const auto& old) { return !old->IsBusy(); });
  kept.push_back(std::move(lookup));
}

RunTimeError NotFound(const std::string& host, const std::string& reason) {
  return RunTimeError(Error::kDeviceUnavailable, host + ": " + reason);
}

}  // namespace

std::vector<SocketAddress> AddressesOf(const std::string& host, std::uint16_t port,
                                       Clock::time_point deadline) {
  Lookup number(host, port, AI_NUMERICHOST);
  if (number.Ask() == 0) return number.Found();
  auto lookup = std::make_unique<Lookup>(host, port, AI_ADDRCONFIG | AI_IDN);
  const int error = lookup->AskUntil(deadline);
  if (lookup->IsBusy()) {
    Keep(std::move(lookup));
    throw NotFound(host, "the name service does not answer");
  }
  if (error == EAI_INPROGRESS || error == EAI_CANCELED) {
    throw NotFound(host, "the name service does not answer");
  }
  if (error != 0) throw NotFound(host, gai_strerror(error));
  return lookup->Found();
}

}  // namespace ZQ7Standard
