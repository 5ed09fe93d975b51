#ifndef ZQ7STANDARD_TOOLS_ZQ7_LINE_READER_H_
#define ZQ7STANDARD_TOOLS_ZQ7_LINE_READER_H_

#include <cstddef>
#include <functional>
#include <streambuf>
#include <string>
#include <string_view>

namespace ZQ7Tool {

/// Reads lines of up to `kMaxLine` bytes, one at a time, and never holds more than that of a longer
/// line.
class LineReader {
 public:
  static constexpr std::size_t kMaxLine = std::size_t{16} << 20;

  /// `before_wait` is called before a read that may have to wait for input.
  LineReader(std::streambuf& source, std::function<void()> before_wait);

  enum class Found { kLine, kTooLong, kEnd };

  /// The next line without its end, valid until the next call. Exceptions of the source reach the
  /// caller.
  Found Next(std::string_view& line);

 private:
  bool Fill();
  std::string_view Take(std::size_t size);

  std::streambuf& source_;
  std::function<void()> before_wait_;
  std::string buffer_;
  std::size_t start_ = 0;  // of what has not been returned yet
};

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_LINE_READER_H_
