#ifndef ZQ7STANDARD_SRC_FORMATS_TIME_PACKET_H_
#define ZQ7STANDARD_SRC_FORMATS_TIME_PACKET_H_

#include <ZQ7Standard/Types.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The packets of the network time protocol (RFC 5905), as far as a client that only asks for the
/// time needs them.
namespace ZQ7Standard {

inline constexpr std::size_t kTimePacketSize = 48;

/// The question of a client. A server sends its 64 random bits `origin` back, so that an answer
/// cannot be forged by somebody who did not see the question.
std::string TimeQuestion(std::uint64_t origin);

/// What a server answers.
struct TimeAnswer {
  std::string problem = {};  ///< why the answer has no time that can be used; empty if it has one
  double utc_days = 0;       ///< when the server sent it, counted like an `OleDate`
};

/// Reads the answer to the question with that `origin`; nullopt for any other packet. Times are
/// those from 1968 to 2104.
std::optional<TimeAnswer> ReadTimeAnswer(std::string_view packet, std::uint64_t origin);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_TIME_PACKET_H_
