#include "dates/day_time_text.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "numbers/number_text.h"

namespace ZQ7Standard {
namespace {

double WholeNumber(TextView text) {
  return std::nearbyint(ReadTypedNumber(text));
}

}  // namespace

DaysAndRest SplitDays(double span, double units_per_day) {
  const double days = std::floor(span);
  const double rest = std::round((span - days) * units_per_day);
  return rest == units_per_day ? DaysAndRest{days + 1, 0} : DaysAndRest{days, rest};
}

std::optional<DayTime> ReadDayTime(TextView text) {
  if (text.find(u':') == TextView::npos) return std::nullopt;
  std::array<double, 3> from_right = {0, 0, 0};
  for (double& field : from_right) {
    const std::size_t colon = text.rfind(u':');
    if (colon == TextView::npos) {
      field = WholeNumber(text);
      break;
    }
    field = WholeNumber(text.substr(colon + 1));
    text = text.substr(0, colon);
  }
  return DayTime{from_right[2], from_right[1], from_right[0]};
}

std::optional<DayTime> ReadDayTimeOrDigits(TextView text) {
  const auto day_time = ReadDayTime(text);
  if (day_time || text.size() != 4) return day_time;
  return DayTime{0, WholeNumber(text.substr(0, 2)), WholeNumber(text.substr(2))};
}

}  // namespace ZQ7Standard
