#include "fill/chunk_reader.h"

#include <algorithm>
#include <utility>

#include "fill/csv_cells.h"

namespace ZQ7Tool {
namespace {

constexpr std::size_t kChunk = std::size_t{128} << 10;

}  // namespace

std::string_view ChunkReader::Beginning() {
  Fill();
  return held_;
}

void ChunkReader::Begin(char delimiter, std::size_t skipped) {
  scanner_ = CsvScanner(delimiter);
  held_.erase(0, skipped);
}

bool ChunkReader::Next(Chunk& chunk) {
  if (held_.empty() && !Fill() && !in_long_line_) return false;
  if (in_long_line_) {
    TakeLongLine(chunk);
    return true;
  }
  std::size_t end = EndOfRows();
  while (end == 0 && !ended_ && held_.size() <= kMaxRow) {
    Fill();
    end = EndOfRows();
  }
  if (end == 0) {
    TakeLongLine(chunk);
  } else {
    chunk.kind = Chunk::Kind::kRows;
    Take(end, chunk);
  }
  return true;
}

/// Reads more; false at the end.
bool ChunkReader::Fill() {
  if (ended_) return false;
  const std::size_t held = held_.size();
  held_.resize(held + kChunk);
  const std::streamsize read =
      source_.sgetn(held_.data() + held, static_cast<std::streamsize>(kChunk));
  held_.resize(held + static_cast<std::size_t>(read));
  bytes_read_ += static_cast<std::size_t>(read);
  ended_ = held_.size() < held + kChunk;
  return held_.size() > held;
}

/// The end of the last complete row before a line that is too long; 0 if there is none.
std::size_t ChunkReader::EndOfRows() {
  const std::string_view bytes = held_;
  for (std::size_t at = 0;;) {
    // Lines without quotes are rows.
    const std::size_t quote = bytes.find('"', at);
    if (quote == std::string_view::npos && ended_) return bytes.size();
    const std::size_t lines_end = bytes.substr(0, quote).rfind('\n') + 1;
    at = std::max(at, lines_end);
    if (quote == std::string_view::npos) return at;
    const auto row = scanner_.Next(bytes.substr(at), ended_);
    if (!row || row->mistake == CsvMistake::kTooLong) return at;
    at += row->size;
    if (at == bytes.size()) return at;
  }
}

void ChunkReader::TakeLongLine(Chunk& chunk) {
  std::size_t end = held_.find('\n');
  // A CR may belong to the line end.
  while (end == std::string::npos && !ended_ && held_.back() == '\r') {
    Fill();
    end = held_.find('\n');
  }
  in_long_line_ = end == std::string::npos && !ended_;
  chunk.kind = in_long_line_ ? Chunk::Kind::kPart : Chunk::Kind::kLastPart;
  Take(end == std::string::npos ? held_.size() : end + 1, chunk);
}

/// Moves the first bytes that are held to the chunk.
void ChunkReader::Take(std::size_t size, Chunk& chunk) {
  chunk.first_line = line_;
  chunk.bytes.swap(held_);
  held_.assign(chunk.bytes, size);
  chunk.bytes.resize(size);
  line_ += LineEnds(chunk.bytes);
}

}  // namespace ZQ7Tool
