#ifndef ZQ7STANDARD_SRC_FORMATS_SERVER_NAME_H_
#define ZQ7STANDARD_SRC_FORMATS_SERVER_NAME_H_

#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// A server as users write it.
struct ServerName {
  std::string host;  ///< UTF-8; the address of IPv6 without brackets
  std::optional<std::uint16_t> port = std::nullopt;
};

/// Reads "name", "name:123", "10.0.0.1", "::1", "[::1]" and "[::1]:123"; nullopt for anything else.
std::optional<ServerName> ReadServerName(TextView text);

/// Whether `host` stands for this machine itself, whatever a name server says: localhost,
/// 127.0.0.0/8 and ::1.
bool IsThisMachine(std::string_view host);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_SERVER_NAME_H_
