#include <ZQ7Standard/StandardObject.h>

#include <utility>

namespace ZQ7Standard {

StandardObject::StandardObject() : StandardObject(StandardServices{}) {}

StandardObject::StandardObject(StandardServices services) : services_(std::move(services)) {
  if (!services_.clock) services_.clock = SystemClock();
  if (!services_.date_convention) services_.date_convention = SystemDateConvention();
  if (!services_.random_source) services_.random_source = SystemRandomSource();
}

DateConvention StandardObject::Convention() const {
  return services_.date_convention->Current();
}

OleDate StandardObject::Today() const {
  return TrimDate(services_.clock->Now());
}

}  // namespace ZQ7Standard
