#ifndef ZQ7STANDARD_SRC_PLATFORM_TIME_QUESTIONS_H_
#define ZQ7STANDARD_SRC_PLATFORM_TIME_QUESTIONS_H_

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/Types.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "formats/time_packet.h"

namespace ZQ7Standard {

using TimeClock = std::chrono::steady_clock;

inline constexpr std::uint16_t kTimePort = 123;
inline constexpr auto kWholeTime = std::chrono::seconds(8);

/// Asks once with `exchange`, which sends the packet of a question to one address and waits for the
/// answer with its random bits until a deadline, and returns nullopt if none comes. The bits are
/// new each time, so that an answer to an earlier question does not fit. The time is that of the
/// return: the answer is taken to have been under way for half of the time since the question.
template <typename Exchange>
std::optional<TimeAnswer> AskOnce(const Exchange& exchange, TimeClock::time_point deadline) {
  constexpr auto kTryTime = std::chrono::seconds(2);
  std::random_device source;
  const std::uint64_t origin = static_cast<std::uint64_t>(source()) << 32U | source();
  const auto sent = TimeClock::now();
  std::optional<TimeAnswer> answer =
      exchange(TimeQuestion(origin), origin, std::min(deadline, sent + kTryTime));
  using Days = std::chrono::duration<double, std::ratio<86400>>;
  if (answer) answer->utc_days += Days(TimeClock::now() - sent).count() / 2;
  return answer;
}

/// The time of the first of a server's addresses that tells it, asked in turn by `ask`, which
/// returns nullopt if nothing answers. Raises 68 if none does before the deadline.
template <typename Address, typename Ask>
OleDate AskInTurn(TextView server, std::vector<Address> addresses, TimeClock::time_point deadline,
                  const Ask& ask) {
  constexpr std::size_t kTries = 3;
  std::string problem = "it does not answer";
  const std::size_t tries = std::max(kTries, addresses.size());
  for (std::size_t i = 0; i < tries && !addresses.empty() && TimeClock::now() < deadline; ++i) {
    const auto address = addresses.begin() + static_cast<std::ptrdiff_t>(i % addresses.size());
    const std::optional<TimeAnswer> answer = ask(*address, deadline);
    if (!answer) continue;
    if (answer->problem.empty()) return OleDate(answer->utc_days);
    problem = answer->problem;
    addresses.erase(address);  // asking again would be no use, and servers forbid it
  }
  throw RunTimeError(Error::kDeviceUnavailable, Utf8(server) + ": " + problem);
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_TIME_QUESTIONS_H_
