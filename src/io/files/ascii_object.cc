#include <ZQ7Standard/ASCIIObject.h>

#include <utility>

#include "platform/service_set.h"

namespace ZQ7Standard {

ASCIIObject::ASCIIObject() : ASCIIObject(Services{}) {}

ASCIIObject::ASCIIObject(Services services)
    : services_(std::make_shared<ServiceSet>(std::move(services))) {}

std::int16_t ASCIIObject::DisableMsgLevel() const {
  return disable_msg_level_;
}

void ASCIIObject::SetDisableMsgLevel(std::int16_t DisableMsgLevel) {
  disable_msg_level_ = DisableMsgLevel;
}

}  // namespace ZQ7Standard
