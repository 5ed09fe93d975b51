#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_LIMITED_CALL_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_LIMITED_CALL_H_

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace ZQ7Standard {

/// Runs `call`, which raises nothing, on a thread of its own, and waits for it until the limit.
/// Returns whether it ended. If not it goes on, and keeps the library loaded until it ends; so it
/// must own all that it uses.
bool EndsWithin(std::function<void()> call, std::chrono::milliseconds limit);

/// The result of `call` as above; nullopt if there is none within the limit.
template <typename Result>
std::optional<Result> ResultWithin(std::function<Result()> call, std::chrono::milliseconds limit) {
  const auto result = std::make_shared<Result>();
  const bool ended = EndsWithin([call = std::move(call), result] { *result = call(); }, limit);
  return ended ? std::optional(std::move(*result)) : std::nullopt;
}

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_LIMITED_CALL_H_
