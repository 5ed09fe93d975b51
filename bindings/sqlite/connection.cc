#include "sqlite/connection.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>

namespace ZQ7SQLite {

using namespace ZQ7Standard;

/// A convention that a statement may change.
class ConnectionConvention final : public DateConventionSource {
 public:
  DateConvention Current() override { return convention_; }

  const std::string& Name() const { return name_; }
  void Set(std::string_view name) {
    const auto convention = DateConventionNamed(name);
    if (!convention) {
      throw RunTimeError(
          Error::kInvalidArgument,
          "\"" + std::string(name) + "\" is not one of mdy, dmy, mdy-buddhist and dmy-buddhist");
    }
    name_ = name;
    convention_ = *convention;
  }

 private:
  std::string name_ = "dmy-buddhist";
  DateConvention convention_ = {FieldOrder::kDayFirst, Era::kBuddhist};
};

Connection::Connection()
    : convention_(std::make_shared<ConnectionConvention>()),
      objects_({.clock = SystemClock(), .date_convention = convention_}) {}

const std::string& Connection::Convention() const {
  return convention_->Name();
}

void Connection::SetConvention(std::string_view name) {
  convention_->Set(name);
}

}  // namespace ZQ7SQLite
