#ifndef ZQ7STANDARD_SRC_DATES_FIRST_DAY_OF_MONTH_H_
#define ZQ7STANDARD_SRC_DATES_FIRST_DAY_OF_MONTH_H_

#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <string_view>

namespace ZQ7Standard {

/// What `GETFirstDayOfMonthYear` returns in that era. Raises the same errors in the name of
/// `operation`.
OleDate FirstDayOfMonth(std::string_view operation, std::int16_t month, std::int16_t year, Era era);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_DATES_FIRST_DAY_OF_MONTH_H_
