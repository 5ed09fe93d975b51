#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_NAME_LOOKUP_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_NAME_LOOKUP_H_

#include <sys/socket.h>

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace ZQ7Standard {

/// Where a packet can be sent to.
struct SocketAddress {
  sockaddr_storage storage{};
  socklen_t size = 0;

  const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&storage); }
};

/// The addresses of a host for UDP, the system's best first. Raises 68 if it has none, or the name
/// service does not tell them before the `deadline`.
std::vector<SocketAddress> AddressesOf(const std::string& host, std::uint16_t port,
                                       std::chrono::steady_clock::time_point deadline);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_NAME_LOOKUP_H_
