#include "dates/first_day_of_month.h"

#include <algorithm>
#include <limits>
#include <string>

#include "base/raise.h"
#include "dates/civil.h"
#include "dates/date_text.h"
#include "dates/eras.h"

namespace ZQ7Standard {

OleDate FirstDayOfMonth(std::string_view operation, std::int16_t month, std::int16_t year,
                        Era era) {
  const int typed_year = year + EraDifference(era);
  if (typed_year > std::numeric_limits<std::int16_t>::max()) {
    Raise(Error::kOverflow, {operation, "iYear2000"}, year);
  }
  const int named_month = month < 0 ? 1 : std::min<int>(month, kMonthsPerYear);
  const auto date = DateInEra(named_month, 1, typed_year, era);
  if (!date) {
    Raise(Error::kTypeMismatch, {operation, month == 0 ? "iMonth" : "iYear2000"},
          month == 0 ? month : year);
  }
  return *date;
}

}  // namespace ZQ7Standard
