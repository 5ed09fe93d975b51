#include <ZQ7Standard/platform/random_source.h>

#include <chrono>
#include <random>

namespace ZQ7Standard {
namespace {

class ClockSeededSource final : public RandomSource {
 public:
  ClockSeededSource() { Reseed(); }

  void Reseed() override {
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    // Mixed, because calls follow each other within a few ticks.
    std::seed_seq seed{ticks & 0xFFFFFFFF, ticks >> 32};
    engine_.seed(seed);
  }

  float Next() override {
    // The 24 bits that a float holds exactly; rounding could give 1.
    return static_cast<float>(engine_() >> 7) * 0x1p-24F;
  }

 private:
  std::minstd_rand engine_;  // 31 bits; a large state would be initialized for each draw
};

}  // namespace

std::shared_ptr<RandomSource> SystemRandomSource() {
  return std::make_shared<ClockSeededSource>();
}

}  // namespace ZQ7Standard
