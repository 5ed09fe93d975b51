#include "platform/linux/program_output.h"

#include <ZQ7Standard/RunTimeError.h>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "platform/linux/child_process.h"
#include "platform/linux/file_errors.h"
#include "platform/linux/program_search.h"

namespace ZQ7Standard {
namespace {

using std::chrono::milliseconds;
using Timer = std::chrono::steady_clock;

constexpr std::size_t kLongestOutput = std::size_t{1} << 20U;

/// Reads until the writers have closed the pipe; false if the deadline comes first, or there is too
/// much.
bool ReadToEnd(const Descriptor& pipe, Timer::time_point deadline, std::string& output) {
  std::array<char, 4096> part;
  while (output.size() < kLongestOutput) {
    const auto left = std::chrono::ceil<milliseconds>(deadline - Timer::now()).count();
    pollfd ready = {pipe.Number(), POLLIN, 0};
    const int found = poll(&ready, 1, static_cast<int>(std::max<std::int64_t>(left, 0)));
    if (found == 0) return false;
    const auto got = found < 0 ? -1 : read(pipe.Number(), part.data(), part.size());
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return got == 0;
    output.append(part.data(), static_cast<std::size_t>(got));
  }
  return false;
}

}  // namespace

std::optional<std::string> ProgramOutput(TextView program,
                                         const std::vector<std::string>& arguments,
                                         milliseconds limit) {
  const auto deadline = Timer::now() + limit;
  ChildStart start = {.path = ProgramPath(program, {}), .arguments = arguments, .folder = "/"};
  if (start.path.empty()) return std::nullopt;
  start.arguments.insert(start.arguments.begin(), start.path);
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) throw FileError(errno, "start", program, start.path);
  const Descriptor from_program(ends[0]);
  Descriptor to_host(ends[1]);
  // A host that closed its standard streams leaves their numbers free, which the program needs.
  to_host = Descriptor(fcntl(ends[1], F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
  start.output = to_host.Number();
  const auto [process, failure] = StartProcess(start, ChildKind::kAwaited);
  to_host = Descriptor();
  if (failure.error != 0) throw FileError(failure.error, "start", program, start.path);
  std::string output;
  const auto left = [&] { return std::chrono::ceil<milliseconds>(deadline - Timer::now()); };
  if (ReadToEnd(from_program, deadline, output) && EndsWithin(process, left())) {
    ExitStatus(process);
    return output;
  }
  End(process);
  throw RunTimeError(
      Error::kPermissionDenied,
      Utf8(program) + " did not end within " + std::to_string(limit.count()) + " ms and was ended");
}

}  // namespace ZQ7Standard
