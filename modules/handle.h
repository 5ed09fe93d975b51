#ifndef ZQ7STANDARD_MODULES_HANDLE_H_
#define ZQ7STANDARD_MODULES_HANDLE_H_

#include <memory>

namespace ZQ7Standard {

template <auto Release>
struct Releaser {
  void operator()(auto* object) const { Release(object); }
};

/// Owns an object of a C library, freed by `Release`.
template <typename Object, auto Release>
using Handle = std::unique_ptr<Object, Releaser<Release>>;

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_HANDLE_H_
