#include "line_reader.h"

#include <algorithm>
#include <utility>

namespace ZQ7Tool {

LineReader::LineReader(std::streambuf& source, std::function<void()> before_wait)
    : source_(source), before_wait_(std::move(before_wait)) {}

LineReader::Found LineReader::Next(std::string_view& line) {
  bool too_long = false;
  std::size_t searched = 0;
  for (;;) {
    const std::size_t end = buffer_.find('\n', start_ + searched);
    if (end != std::string::npos) {
      line = Take(end - start_);
      ++start_;
      return too_long || line.size() > kMaxLine ? Found::kTooLong : Found::kLine;
    }
    searched = buffer_.size() - start_;
    if (searched > kMaxLine) {
      too_long = true;
      Take(std::exchange(searched, 0));
    }
    if (Fill()) continue;
    line = Take(searched);
    if (too_long) return Found::kTooLong;
    return line.empty() ? Found::kEnd : Found::kLine;
  }
}

/// Reads what the source has, at least one byte; false at its end.
bool LineReader::Fill() {
  constexpr std::streamsize kBlock = 65536;
  buffer_.erase(0, std::exchange(start_, 0));
  if (source_.in_avail() <= 0) before_wait_();
  if (source_.sgetc() == std::streambuf::traits_type::eof()) return false;
  const std::streamsize size = std::clamp<std::streamsize>(source_.in_avail(), 1, kBlock);
  const std::size_t held = buffer_.size();
  buffer_.resize(held + static_cast<std::size_t>(size));
  const std::streamsize read = source_.sgetn(buffer_.data() + held, size);
  buffer_.resize(held + static_cast<std::size_t>(read));
  return true;
}

std::string_view LineReader::Take(std::size_t size) {
  const std::string_view taken = std::string_view(buffer_).substr(start_, size);
  start_ += size;
  return taken;
}

}  // namespace ZQ7Tool
