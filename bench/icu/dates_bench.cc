#include <unicode/calendar.h>

#include <memory>
#include <vector>

#include "bench/icu/icu.h"
#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

void ReadDateIcu(benchmark::State& state) {
  UErrorCode status = U_ZERO_ERROR;
  const auto format = ThaiDateFormat(u"d/M/yyyy", status);
  std::vector<icu::UnicodeString> texts;
  for (const Day& day : Days()) texts.push_back(ToIcu(day.typed_text));
  if (U_FAILURE(status)) return Check(state, status);
  Measure(state, texts,
          [&](const icu::UnicodeString& text) { return format->parse(text, status); });
  Check(state, status);
}
BENCHMARK(ReadDateIcu)->Name("read_date/icu");

std::vector<UDate> Dates() {
  std::vector<UDate> list;
  for (const Day& day : Days()) list.push_back(ToIcu(day.date));
  return list;
}

void FormatIcu(benchmark::State& state, const char16_t* pattern, const char* locale,
               const std::vector<UDate>& dates) {
  UErrorCode status = U_ZERO_ERROR;
  const auto format = DateFormat(pattern, locale, status);
  if (U_FAILURE(status)) return Check(state, status);
  icu::UnicodeString text;
  Measure(state, dates, [&](UDate date) {
    text.remove();
    static_cast<icu::DateFormat&>(*format).format(date, text);
    return text.length();
  });
}

void FormatDateIcu(benchmark::State& state) {
  FormatIcu(state, u"d MMMM yyyy", "th_TH@calendar=buddhist", Dates());
}
BENCHMARK(FormatDateIcu)->Name("format_date/icu");
BENCHMARK(FormatDateIcu)->Name("format_thai/icu");

std::vector<UDate> MomentsInIcu() {
  std::vector<UDate> list;
  for (const OleDate date : Moments()) list.push_back(ToIcu(date));
  return list;
}

void FormatTimeIcu(benchmark::State& state) {
  FormatIcu(state, u"HH:mm:ss", "en_US", MomentsInIcu());
}
BENCHMARK(FormatTimeIcu)->Name("format_time/icu");

void FormatQueryIcu(benchmark::State& state) {
  FormatIcu(state, u"yyyy-MM-dd HH:mm:ss", "en_US", MomentsInIcu());
}
BENCHMARK(FormatQueryIcu)->Name("format_query/icu");

void Format2000Icu(benchmark::State& state) {
  FormatIcu(state, u"d/M/yyyy", "th_TH@calendar=buddhist", Dates());
}
BENCHMARK(Format2000Icu)->Name("format_2000/icu");

void AddMonthIcu(benchmark::State& state) {
  UErrorCode status = U_ZERO_ERROR;
  const std::unique_ptr<icu::Calendar> calendar(
      icu::Calendar::createInstance(*icu::TimeZone::getGMT(), "th_TH@calendar=buddhist", status));
  if (U_FAILURE(status)) return Check(state, status);
  Measure(state, Dates(), [&](UDate date) {
    calendar->setTime(date, status);
    calendar->add(UCAL_MONTH, 1, status);
    return calendar->getTime(status);
  });
  Check(state, status);
}
BENCHMARK(AddMonthIcu)->Name("add_month/icu");

}  // namespace
}  // namespace ZQ7Standard::Bench
