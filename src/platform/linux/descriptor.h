#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_DESCRIPTOR_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_DESCRIPTOR_H_

#include <unistd.h>

#include <utility>

namespace ZQ7Standard {

/// Owns the file descriptor that a system call returned, which may be -1.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }

  explicit operator bool() const { return number_ >= 0; }
  int Number() const { return number_; }

 private:
  int number_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_DESCRIPTOR_H_
