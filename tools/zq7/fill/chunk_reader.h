#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_CHUNK_READER_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_CHUNK_READER_H_

#include <cstddef>
#include <streambuf>
#include <string>
#include <string_view>

#include "fill/csv_scanner.h"

namespace ZQ7Tool {

/// A piece of a file.
struct Chunk {
  enum class Kind {
    kRows,     ///< complete rows
    kPart,     ///< of a line of more than `kMaxRow`
    kLastPart  ///< of such a line, with its end
  };

  Kind kind = Kind::kRows;
  std::string bytes = {};
  std::size_t first_line = 1;  ///< the number of the line that it begins in
};

/// Cuts a file into chunks at the ends of rows. Holds no more than a chunk and the row after it,
/// however long that is.
class ChunkReader {
 public:
  explicit ChunkReader(std::streambuf& source) : source_(source) {}

  /// The bytes that the file begins with, up to a chunk. Call it before `Next`.
  std::string_view Beginning();

  /// Sets the delimiter, and leaves out the first bytes of the file.
  void Begin(char delimiter, std::size_t skipped);

  /// Replaces `chunk` by the next one; false at the end. Exceptions of the source reach the caller.
  bool Next(Chunk& chunk);

  /// The bytes read so far.
  std::size_t BytesRead() const { return bytes_read_; }

 private:
  bool Fill();
  std::size_t EndOfRows();
  void TakeLongLine(Chunk& chunk);
  void Take(std::size_t size, Chunk& chunk);

  std::streambuf& source_;
  CsvScanner scanner_{','};
  std::string held_;  // has been read and is in no chunk yet
  bool ended_ = false;
  bool in_long_line_ = false;
  std::size_t line_ = 1;
  std::size_t bytes_read_ = 0;
};

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_CHUNK_READER_H_
