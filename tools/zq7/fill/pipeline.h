#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_PIPELINE_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_PIPELINE_H_

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <limits>
#include <mutex>
#include <vector>

#include "fill/chunk_filler.h"

namespace ZQ7Tool {

/// Passes chunks from a reader through threads that fill them to a writer, in their order. The
/// number of chunks on the way is bounded.
class Pipeline {
 public:
  /// Replaces the chunk by the next one; false at the end.
  using Read = std::function<bool(Chunk&)>;
  /// Takes a chunk with its new cells; false to stop.
  using Write = std::function<bool(const Chunk&, const FilledChunk&)>;
  /// Makes what fills the chunks of a thread.
  using MakeFiller = std::function<ChunkFiller()>;

  explicit Pipeline(std::size_t jobs);

  /// Reads in a thread of its own and writes in the caller's, until one of them ends. Throws what
  /// any of them throws.
  void Run(const Read& read, const MakeFiller& make_filler, const Write& write);

 private:
  /// A chunk on its way. Its owner changes with the state, under the lock.
  struct Place {
    enum class State { kFree, kRead, kFilled };
    State state = State::kFree;
    std::size_t number = 0;  ///< of the chunk
    Chunk chunk = {};
    FilledChunk filled = {};
  };

  static constexpr std::size_t kUnknown = std::numeric_limits<std::size_t>::max();

  void ReadChunks(const Read& read);
  void FillChunks(const MakeFiller& make_filler);
  void WriteChunks(const Write& write);
  Place* Wait(std::size_t number, Place::State state);
  void Pass(Place& place, Place::State state);
  void End(std::size_t count);
  void Guarded(const std::function<void()>& work);

  std::size_t jobs_;
  std::mutex lock_;
  std::condition_variable changed_;
  std::vector<Place> places_;  // chunk n is in place n modulo their number
  std::size_t next_to_fill_ = 0;
  std::size_t count_ = kUnknown;  // of the chunks
  std::exception_ptr failure_;
};

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_PIPELINE_H_
