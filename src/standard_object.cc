#include <ZQ7Standard/StandardObject.h>

#include <utility>

#include "platform/service_set.h"

namespace ZQ7Standard {

StandardObject::StandardObject() : StandardObject(Services{}) {}

StandardObject::StandardObject(Services services)
    : services_(std::make_shared<ServiceSet>(std::move(services))) {}

}  // namespace ZQ7Standard
