#include "fill/progress.h"

#include <algorithm>
#include <string_view>

namespace ZQ7Tool {
namespace {

constexpr std::string_view kClearLine = "\r\x1b[K";

std::string Grouped(double number) {
  std::string digits = std::to_string(static_cast<std::size_t>(number));
  for (std::size_t at = digits.size(); at > 3;) digits.insert(at -= 3, 1, ',');
  return digits;
}

std::string MinutesAndSeconds(double seconds) {
  constexpr std::size_t kMinute = 60;
  const auto whole = static_cast<std::size_t>(seconds);
  const std::string rest = std::to_string(whole % kMinute);
  return std::to_string(whole / kMinute) + (rest.size() < 2 ? ":0" : ":") + rest;
}

}  // namespace

std::string ProgressLine(const Done& done, std::optional<std::size_t> size) {
  const double seconds = std::max(done.seconds, 1e-9);
  const auto rows = static_cast<double>(done.rows);
  std::string line = Grouped(rows) + " rows  " + Grouped(rows / seconds) + " rows/s";
  if (!size || *size == 0 || done.bytes == 0) return line;
  constexpr std::size_t kWidth = 20;
  const double share = std::min(static_cast<double>(done.bytes) / static_cast<double>(*size), 1.0);
  const auto filled = static_cast<std::size_t>(share * static_cast<double>(kWidth));
  std::string bar(kWidth, '-');
  std::fill_n(bar.begin(), filled, '#');
  line.insert(
      0, std::string("[").append(bar).append("] ").append(Grouped(share * 100)).append(" %  "));
  return line + "  " + MinutesAndSeconds(seconds * (1 - share) / share) + " left";
}

Progress::~Progress() {
  if (terminal_ != nullptr && shown_ != began_) *terminal_ << kClearLine << std::flush;
}

void Progress::Show(std::size_t rows, std::size_t bytes) {
  constexpr std::chrono::milliseconds kPause(200);
  const Clock::time_point now = Clock::now();
  if (terminal_ == nullptr || now - shown_ < kPause) return;
  shown_ = now;
  const std::chrono::duration<double> seconds = now - began_;
  *terminal_ << kClearLine << ProgressLine({rows, bytes, seconds.count()}, size_) << std::flush;
}

}  // namespace ZQ7Tool
