#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/time_servers.h>
#include <poll.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <optional>
#include <string>
#include <utility>

#include "base/unicode.h"
#include "formats/server_name.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/name_lookup.h"
#include "platform/linux/system_calls.h"
#include "platform/time_questions.h"

namespace ZQ7Standard {
namespace {

TimeAnswer Failed(int error) {
  return {.problem = std::strerror(error)};
}

/// Reads a packet from a socket that has one; nullopt if it is not the answer.
std::optional<TimeAnswer> Received(const Descriptor& socket, std::uint64_t origin) {
  std::array<char, 512> packet;
  const ssize_t size = Uninterrupted(
      [&] { return recv(socket.Number(), packet.data(), packet.size(), MSG_DONTWAIT); });
  if (size >= 0) return ReadTimeAnswer({packet.data(), static_cast<std::size_t>(size)}, origin);
  if (errno == EAGAIN) return std::nullopt;
  return Failed(errno);
}

/// Waits for the answer to a question; what others send is passed over.
std::optional<TimeAnswer> Awaited(const Descriptor& socket, std::uint64_t origin,
                                  TimeClock::time_point deadline) {
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - TimeClock::now());
    if (left.count() <= 0) return std::nullopt;
    pollfd ready = {socket.Number(), POLLIN, 0};
    const int found = poll(&ready, 1, static_cast<int>(left.count()));
    if (found < 0 && errno != EINTR) return Failed(errno);
    if (found <= 0) continue;
    if (auto answer = Received(socket, origin)) return answer;
  }
}

/// Asks once, from a port of its own; nullopt if nothing answers.
std::optional<TimeAnswer> Ask(const SocketAddress& address, TimeClock::time_point deadline) {
  const Descriptor socket(::socket(address.storage.ss_family, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  if (!socket || connect(socket.Number(), address.Get(), address.size) != 0) return Failed(errno);
  const auto exchange = [&](const std::string& question, std::uint64_t origin,
                            TimeClock::time_point until) -> std::optional<TimeAnswer> {
    const ssize_t size = Uninterrupted(
        [&] { return send(socket.Number(), question.data(), question.size(), MSG_NOSIGNAL); });
    if (size < 0) return Failed(errno);
    return Awaited(socket, origin, until);
  };
  return AskOnce(exchange, deadline);
}

class LinuxTimeServers final : public TimeServers {
 public:
  OleDate UtcOf(TextView server) override {
    const auto name = ReadServerName(server);
    if (!name) throw RunTimeError(Error::kInvalidArgument, Quoted(server) + " is not a server");
    const auto deadline = TimeClock::now() + kWholeTime;
    auto addresses = AddressesOf(name->host, name->port.value_or(kTimePort), deadline);
    return AskInTurn(server, std::move(addresses), deadline, Ask);
  }
};

}  // namespace

std::shared_ptr<TimeServers> SystemTimeServers() {
  return std::make_shared<LinuxTimeServers>();
}

}  // namespace ZQ7Standard
