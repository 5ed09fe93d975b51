#ifndef ZQ7STANDARD_PLATFORM_TIME_SERVERS_H_
#define ZQ7STANDARD_PLATFORM_TIME_SERVERS_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>

#include <memory>

namespace ZQ7Standard {

/// The servers that tell the time to a network.
class ZQ7STANDARD_EXPORT TimeServers {
 public:
  virtual ~TimeServers();

  /// The date and time of a server in UTC, at the moment of the return. `server` is a name, or
  /// an address, and perhaps a port: "time.example:123", "[::1]:123". Raises 5 for any other
  /// text, 68 if no server of that name answers, or it does not know the time itself.
  virtual OleDate UtcOf(TextView server) = 0;
};

/// Asks by SNTP (RFC 5905), up to three times, for two seconds each. Name resolution and all
/// questions together take eight seconds at most. Replies that the server cannot have sent to
/// this question are ignored. On Windows a server named without a port is first asked by the
/// system's own protocol (NetRemoteTOD), for eight seconds more at most.
ZQ7STANDARD_EXPORT std::shared_ptr<TimeServers> SystemTimeServers();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_TIME_SERVERS_H_
