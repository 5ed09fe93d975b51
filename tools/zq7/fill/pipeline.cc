#include "fill/pipeline.h"

#include <algorithm>
#include <thread>

namespace ZQ7Tool {
namespace {

/// Bounds the memory on machines with many cores.
constexpr std::size_t kMostPlaces = 24;

}  // namespace

Pipeline::Pipeline(std::size_t jobs)
    : jobs_(std::clamp<std::size_t>(jobs, 1, kMostPlaces)),
      places_(std::min(jobs_ * 2 + 2, kMostPlaces)) {}

void Pipeline::Run(const Read& read, const MakeFiller& make_filler, const Write& write) {
  {
    std::vector<std::jthread> threads;
    threads.emplace_back([&] { Guarded([&] { ReadChunks(read); }); });
    for (std::size_t i = 0; i < jobs_; ++i) {
      threads.emplace_back([&] { Guarded([&] { FillChunks(make_filler); }); });
    }
    Guarded([&] { WriteChunks(write); });
  }
  if (failure_) std::rethrow_exception(failure_);
}

void Pipeline::ReadChunks(const Read& read) {
  for (std::size_t number = 0;; ++number) {
    Place* const place = Wait(number, Place::State::kFree);
    if (place == nullptr) return;
    if (!read(place->chunk)) return End(number);
    place->number = number;
    Pass(*place, Place::State::kRead);
  }
}

void Pipeline::FillChunks(const MakeFiller& make_filler) {
  ChunkFiller filler = make_filler();
  for (;;) {
    std::size_t number = 0;
    {
      const std::scoped_lock locked(lock_);
      number = next_to_fill_++;
    }
    Place* const place = Wait(number, Place::State::kRead);
    if (place == nullptr) return;
    filler.Fill(place->chunk, place->filled);
    Pass(*place, Place::State::kFilled);
  }
}

void Pipeline::WriteChunks(const Write& write) {
  for (std::size_t number = 0;; ++number) {
    Place* const place = Wait(number, Place::State::kFilled);
    if (place == nullptr) return;
    if (!write(place->chunk, place->filled)) return End(0);
    Pass(*place, Place::State::kFree);
  }
}

/// The place of a chunk as soon as it is in that state; null if there is no such chunk.
Pipeline::Place* Pipeline::Wait(std::size_t number, Place::State state) {
  Place& place = places_[number % places_.size()];
  std::unique_lock locked(lock_);
  changed_.wait(locked, [&] {
    const bool ready =
        place.state == state && (state == Place::State::kFree || place.number == number);
    return ready || number >= count_;
  });
  return number < count_ ? &place : nullptr;
}

void Pipeline::Pass(Place& place, Place::State state) {
  {
    const std::scoped_lock locked(lock_);
    place.state = state;
  }
  changed_.notify_all();
}

/// Says that there are no more chunks than that.
void Pipeline::End(std::size_t count) {
  {
    const std::scoped_lock locked(lock_);
    count_ = std::min(count_, count);
  }
  changed_.notify_all();
}

/// Runs the work of a thread; a failure ends the others.
void Pipeline::Guarded(const std::function<void()>& work) {
  try {
    work();
  } catch (...) {
    {
      const std::scoped_lock locked(lock_);
      if (!failure_) failure_ = std::current_exception();
    }
    End(0);
  }
}

}  // namespace ZQ7Tool
