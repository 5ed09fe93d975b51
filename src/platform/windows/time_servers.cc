#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/time_servers.h>
// The others need the first.
// clang-format off
#include <winsock2.h>
#include <lm.h>
// clang-format on

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "base/unicode.h"
#include "formats/server_name.h"
#include "platform/time_questions.h"
#include "platform/windows/library.h"
#include "platform/windows/limited_call.h"
#include "platform/windows/system_text.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/winsock.h"

namespace ZQ7Standard {
namespace {

using std::chrono::milliseconds;

/// The time of another machine of Windows by its own protocol; nullopt if it does not tell. The
/// library is loaded for the call alone, as few programs ever ask.
std::optional<double> DaysByNetwork(const std::wstring& host) {
  const SystemLibrary library(L"netapi32.dll");
  auto* const ask = library.Find<decltype(NetRemoteTOD)>("NetRemoteTOD");
  auto* const free = library.Find<decltype(NetApiBufferFree)>("NetApiBufferFree");
  if (ask == nullptr || free == nullptr) return std::nullopt;
  BYTE* buffer = nullptr;
  if (ask((LR"(\\)" + host).c_str(), &buffer) != NERR_Success || buffer == nullptr) {
    return std::nullopt;
  }
  const std::unique_ptr<BYTE, decltype(free)> owned(buffer, free);
  const auto& time = *reinterpret_cast<const TIME_OF_DAY_INFO*>(buffer);
  constexpr double kEpoch = 25569;  // 1970-01-01 as a day count
  return kEpoch + (time.tod_elapsedt + time.tod_hunds / 100.0) / 86400;
}

std::optional<OleDate> AskByNetwork(const std::string& host) {
  const auto days = ResultWithin<std::optional<double>>(
      [name = Wide(FromUtf8(host))] { return DaysByNetwork(name); }, kWholeTime);
  if (!days || !*days) return std::nullopt;
  return OleDate(**days);
}

TimeAnswer Failed(int error) {
  return {.problem = SystemText(static_cast<DWORD>(error))};
}

/// Reads a packet from a socket that has one; nullopt if it is not the answer.
std::optional<TimeAnswer> Received(const Socket& socket, std::uint64_t origin) {
  std::array<char, 512> packet;
  const int size = recv(socket.Get(), packet.data(), static_cast<int>(packet.size()), 0);
  if (size >= 0) return ReadTimeAnswer({packet.data(), static_cast<std::size_t>(size)}, origin);
  const int error = WSAGetLastError();
  if (error == WSAEMSGSIZE || error == WSAEWOULDBLOCK) return std::nullopt;
  return Failed(error);
}

/// Waits for the answer to a question; what others send is passed over.
std::optional<TimeAnswer> Awaited(const Socket& socket, std::uint64_t origin,
                                  TimeClock::time_point deadline) {
  for (;;) {
    const auto left = std::chrono::ceil<milliseconds>(deadline - TimeClock::now());
    if (left.count() <= 0) return std::nullopt;
    WSAPOLLFD ready = {socket.Get(), POLLRDNORM, 0};
    const int found = WSAPoll(&ready, 1, static_cast<int>(left.count()));
    if (found < 0) return Failed(WSAGetLastError());
    if (found == 0) continue;
    if (auto answer = Received(socket, origin)) return answer;
  }
}

/// Asks once, from a port of its own; nullopt if nothing answers.
std::optional<TimeAnswer> Ask(const SocketAddress& address, TimeClock::time_point deadline) {
  const Socket socket(::socket(address.storage.ss_family, SOCK_DGRAM, IPPROTO_UDP));
  u_long does_not_wait = 1;
  if (!socket || connect(socket.Get(), address.Get(), address.size) != 0 ||
      ioctlsocket(socket.Get(), static_cast<long>(FIONBIO), &does_not_wait) != 0) {
    return Failed(WSAGetLastError());
  }
  const auto exchange = [&](const std::string& question, std::uint64_t origin,
                            TimeClock::time_point until) -> std::optional<TimeAnswer> {
    if (send(socket.Get(), question.data(), static_cast<int>(question.size()), 0) < 0) {
      return Failed(WSAGetLastError());
    }
    return Awaited(socket, origin, until);
  };
  return AskOnce(exchange, deadline);
}

class WindowsTimeServers final : public TimeServers {
 public:
  OleDate UtcOf(TextView server) override {
    const auto name = ReadServerName(server);
    if (!name) throw RunTimeError(Error::kInvalidArgument, Quoted(server) + " is not a server");
    // The system's protocol knows neither ports nor addresses with colons.
    if (!name->port && name->host.find(':') == std::string::npos) {
      if (const auto time = AskByNetwork(name->host)) return *time;
    }
    const WinsockUse winsock;
    const auto deadline = TimeClock::now() + kWholeTime;
    auto addresses = AddressesOf(name->host, name->port.value_or(kTimePort), deadline);
    return AskInTurn(server, std::move(addresses), deadline, Ask);
  }
};

}  // namespace

std::shared_ptr<TimeServers> SystemTimeServers() {
  return std::make_shared<WindowsTimeServers>();
}

}  // namespace ZQ7Standard
