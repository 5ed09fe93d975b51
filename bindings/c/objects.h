#ifndef ZQ7STANDARD_BINDINGS_C_OBJECTS_H_
#define ZQ7STANDARD_BINDINGS_C_OBJECTS_H_

#include <ZQ7Standard/automation/invoke.h>
#include <zq7standard.h>

#include <utility>

#include "catalogue.h"
#include "failures.h"

/// An object and what the C catalogue knows of its class.
struct zq7_object {
  explicit zq7_object(ZQ7Standard::Automation::Object made)
      : object(std::move(made)), owner(ZQ7C::ClassOf(object.Class())) {}

  ZQ7Standard::Automation::Object object;
  const ZQ7C::Class& owner;
};

/// Services that objects are made with.
struct zq7_services {
  ZQ7Standard::Services services;
};

namespace ZQ7C {

/// Writes the object that `make` returns to `object`, which is null after a failure.
template <typename Make>
zq7_status Made(zq7_object** object, const Make& make) {
  return Guarded([&] {
    Require(object != nullptr, "no place for the object");
    *object = nullptr;
    *object = new zq7_object(make());
  });
}

}  // namespace ZQ7C

#endif  // ZQ7STANDARD_BINDINGS_C_OBJECTS_H_
