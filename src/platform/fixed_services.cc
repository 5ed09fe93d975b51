#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <ZQ7Standard/platform/time_text.h>

namespace ZQ7Standard {
namespace {

class ConstantClock final : public Clock {
 public:
  explicit ConstantClock(OleDate now) : now_(now) {}
  OleDate Now() override { return now_; }

 private:
  OleDate now_;
};

class ConstantConvention final : public DateConventionSource {
 public:
  explicit ConstantConvention(DateConvention convention) : convention_(convention) {}
  DateConvention Current() override { return convention_; }

 private:
  DateConvention convention_;
};

}  // namespace

std::shared_ptr<Clock> FixedClock(OleDate now) {
  return std::make_shared<ConstantClock>(now);
}

std::shared_ptr<DateConventionSource> FixedDateConvention(DateConvention convention) {
  return std::make_shared<ConstantConvention>(convention);
}

}  // namespace ZQ7Standard
