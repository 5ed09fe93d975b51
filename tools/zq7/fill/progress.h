#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_PROGRESS_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_PROGRESS_H_

#include <chrono>
#include <cstddef>
#include <optional>
#include <ostream>
#include <string>

namespace ZQ7Tool {

/// What has been done after some time.
struct Done {
  std::size_t rows = 0;
  std::size_t bytes = 0;
  double seconds = 0;
};

/// "[#####-----] 50 %  1,200,000 rows  600,000 rows/s  0:02 left". Without the size of the whole,
/// rows and rate alone.
std::string ProgressLine(const Done& done, std::optional<std::size_t> size);

/// Shows progress in the last line of a terminal, and clears the line at the end.
class Progress {
 public:
  /// Shows nothing without a stream.
  Progress(std::ostream* terminal, std::optional<std::size_t> size)
      : terminal_(terminal), size_(size) {}
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Show(std::size_t rows, std::size_t bytes);

 private:
  using Clock = std::chrono::steady_clock;

  std::ostream* terminal_;
  std::optional<std::size_t> size_;
  Clock::time_point began_ = Clock::now();
  Clock::time_point shown_ = began_;
};

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_PROGRESS_H_
