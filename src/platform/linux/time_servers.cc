#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/time_servers.h>
#include <poll.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <optional>
#include <random>
#include <string>

#include "base/unicode.h"
#include "formats/server_name.h"
#include "formats/time_packet.h"
#include "platform/linux/descriptor.h"
#include "platform/linux/name_lookup.h"
#include "platform/linux/system_calls.h"

namespace ZQ7Standard {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint16_t kTimePort = 123;
constexpr std::size_t kTries = 3;
constexpr auto kTryTime = std::chrono::seconds(2);
constexpr auto kWholeTime = std::chrono::seconds(8);

std::uint64_t RandomBits() {
  std::random_device source;
  return static_cast<std::uint64_t>(source()) << 32U | source();
}

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
                                  Clock::time_point deadline) {
  for (;;) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() <= 0) return std::nullopt;
    pollfd ready = {socket.Number(), POLLIN, 0};
    const int found = poll(&ready, 1, static_cast<int>(left.count()));
    if (found < 0 && errno != EINTR) return Failed(errno);
    if (found <= 0) continue;
    if (auto answer = Received(socket, origin)) return answer;
  }
}

/// Asks once, from a port of its own and with new random bits, so that an answer to an earlier
/// question does not fit; nullopt if nothing answers. The time is that of the return: the answer is
/// taken to have been under way for half of the time since the question.
std::optional<TimeAnswer> Ask(const SocketAddress& address, Clock::time_point deadline) {
  const Descriptor socket(::socket(address.storage.ss_family, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  if (!socket || connect(socket.Number(), address.Get(), address.size) != 0) return Failed(errno);
  const std::uint64_t origin = RandomBits();
  const std::string question = TimeQuestion(origin);
  const auto sent = Clock::now();
  const ssize_t size = Uninterrupted(
      [&] { return send(socket.Number(), question.data(), question.size(), MSG_NOSIGNAL); });
  if (size < 0) return Failed(errno);
  auto answer = Awaited(socket, origin, std::min(deadline, sent + kTryTime));
  using Days = std::chrono::duration<double, std::ratio<86400>>;
  if (answer) answer->utc_days += Days(Clock::now() - sent).count() / 2;
  return answer;
}

class LinuxTimeServers final : public TimeServers {
 public:
  OleDate UtcOf(TextView server) override {
    const auto name = ReadServerName(server);
    if (!name) throw RunTimeError(Error::kInvalidArgument, Quoted(server) + " is not a server");
    const auto deadline = Clock::now() + kWholeTime;
    auto addresses = AddressesOf(name->host, name->port.value_or(kTimePort), deadline);
    std::string problem = "it does not answer";
    const std::size_t tries = std::max(kTries, addresses.size());
    for (std::size_t i = 0; i < tries && !addresses.empty() && Clock::now() < deadline; ++i) {
      const auto address = addresses.begin() + static_cast<std::ptrdiff_t>(i % addresses.size());
      const auto answer = Ask(*address, deadline);
      if (!answer) continue;
      if (answer->problem.empty()) return OleDate(answer->utc_days);
      problem = answer->problem;
      addresses.erase(address);  // asking again would be no use, and servers forbid it
    }
    throw RunTimeError(Error::kDeviceUnavailable, Utf8(server) + ": " + problem);
  }
};

}  // namespace

std::shared_ptr<TimeServers> SystemTimeServers() {
  return std::make_shared<LinuxTimeServers>();
}

}  // namespace ZQ7Standard
