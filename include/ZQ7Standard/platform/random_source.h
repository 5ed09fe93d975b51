#ifndef ZQ7STANDARD_PLATFORM_RANDOM_SOURCE_H_
#define ZQ7STANDARD_PLATFORM_RANDOM_SOURCE_H_

#include <ZQ7Standard/Export.h>

#include <memory>

namespace ZQ7Standard {

/// The pseudo-random numbers that `StandardObject::Random` draws. A host may give its own
/// to make the draws predictable; it is then called on the thread of the operation.
class ZQ7STANDARD_EXPORT RandomSource {
 public:
  virtual ~RandomSource();

  /// Starts a new sequence, seeded from the clock.
  virtual void Reseed() = 0;

  /// The next number of the sequence, from 0 up to but not including 1.
  virtual float Next() = 0;
};

/// A generator seeded from the machine's clock. Not for secrets: whoever knows the moment
/// of a draw knows the number.
ZQ7STANDARD_EXPORT std::shared_ptr<RandomSource> SystemRandomSource();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_RANDOM_SOURCE_H_
