#include <date/date.h>

#include <vector>

#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

std::vector<date::local_days> LocalDays() {
  std::vector<date::local_days> list;
  for (const Day& day : Days()) {
    list.emplace_back(date::days(day.date.Civil().time_since_epoch().count()));
  }
  return list;
}

/// From a day count to a day count, like `AddMonth`.
void AddMonthDate(benchmark::State& state) {
  Measure(state, LocalDays(), [](date::local_days day) {
    date::year_month_day later = date::year_month_day(day) + date::months(1);
    if (!later.ok()) later = later.year() / later.month() / date::last;
    return date::local_days(later);
  });
}
BENCHMARK(AddMonthDate)->Name("add_month/date");

}  // namespace
}  // namespace ZQ7Standard::Bench
