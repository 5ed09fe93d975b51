#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_WINSOCK_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_WINSOCK_H_

#include <winsock2.h>
#include <ws2tcpip.h>

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace ZQ7Standard {

/// The use of the network's functions, until the destructor.
class WinsockUse {
 public:
  WinsockUse();
  WinsockUse(const WinsockUse&) = delete;
  WinsockUse& operator=(const WinsockUse&) = delete;
  ~WinsockUse() { WSACleanup(); }
};

/// A socket, closed by the destructor.
class Socket {
 public:
  explicit Socket(SOCKET socket) : socket_(socket) {}
  Socket(const Socket&) = delete;
  Socket& operator=(const Socket&) = delete;
  ~Socket() {
    if (*this) closesocket(socket_);
  }
  explicit operator bool() const { return socket_ != INVALID_SOCKET; }
  SOCKET Get() const { return socket_; }

 private:
  SOCKET socket_;
};

/// Where a packet can be sent to.
struct SocketAddress {
  sockaddr_storage storage{};
  int size = 0;

  const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&storage); }
};

/// The addresses of a host for UDP, the system's best first. Raises 68 if it has none, or the name
/// service does not tell them before the `deadline`.
std::vector<SocketAddress> AddressesOf(const std::string& host, std::uint16_t port,
                                       std::chrono::steady_clock::time_point deadline);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_WINSOCK_H_
