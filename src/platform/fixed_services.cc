#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <ZQ7Standard/platform/machine.h>
#include <ZQ7Standard/platform/time_text.h>

#include <algorithm>
#include <array>
#include <utility>

namespace ZQ7Standard {
namespace {

constexpr std::array<NamedDateConvention, 4> kConventions = {{
    {"mdy", {FieldOrder::kMonthFirst, Era::kGregorian}},
    {"dmy", {FieldOrder::kDayFirst, Era::kGregorian}},
    {"mdy-buddhist", {FieldOrder::kMonthFirst, Era::kBuddhist}},
    {"dmy-buddhist", {FieldOrder::kDayFirst, Era::kBuddhist}},
}};

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

class ConstantMachine final : public Machine {
 public:
  explicit ConstantMachine(MachineFacts facts) : facts_(std::move(facts)) {}
  Text ComputerName() override { return facts_.computer_name; }
  Text DiskSerialNumber(TextView /*path*/) override { return facts_.disk_serial_number; }
  Text VolumeSerialNumber(TextView /*path*/) override { return facts_.volume_serial_number; }

 private:
  MachineFacts facts_;
};

}  // namespace

std::shared_ptr<Machine> FixedMachine(MachineFacts facts) {
  return std::make_shared<ConstantMachine>(std::move(facts));
}

std::shared_ptr<Clock> FixedClock(OleDate now) {
  return std::make_shared<ConstantClock>(now);
}

std::shared_ptr<DateConventionSource> FixedDateConvention(DateConvention convention) {
  return std::make_shared<ConstantConvention>(convention);
}

std::span<const NamedDateConvention> DateConventions() {
  return kConventions;
}

std::optional<DateConvention> DateConventionNamed(std::string_view name) {
  const auto row = std::ranges::find(kConventions, name, &NamedDateConvention::name);
  if (row == kConventions.end()) return std::nullopt;
  return row->convention;
}

}  // namespace ZQ7Standard
