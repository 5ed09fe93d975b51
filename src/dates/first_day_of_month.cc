#include "dates/first_day_of_month.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <limits>
#include <string>

#include "dates/civil.h"
#include "dates/date_text.h"
#include "dates/eras.h"

namespace ZQ7Standard {

OleDate FirstDayOfMonth(std::string_view operation, std::int16_t month, std::int16_t year,
                        Era era) {
  const int typed_year = year + EraDifference(era);
  const std::string input = std::to_string(month) + ", " + std::to_string(year);
  if (typed_year > std::numeric_limits<std::int16_t>::max()) {
    throw RunTimeError::Overflow(operation, input);
  }
  const int named_month = month < 0 ? 1 : std::min<int>(month, kMonthsPerYear);
  const auto date = ReadNamedMonthDate(named_month, 1, typed_year, era);
  if (!date) throw RunTimeError::TypeMismatch(operation, input);
  return *date;
}

}  // namespace ZQ7Standard
