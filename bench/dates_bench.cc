#include <ZQ7Standard/StandardObject.h>
#include <locale.h>
#include <time.h>

#include <array>

#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

void ReadDate(benchmark::State& state) {
  const StandardObject standard;
  Measure(state, Column(Days(), &Day::typed_text),
          [&standard](const Text& text) { return standard.CTDATE(text); });
}
BENCHMARK(ReadDate)->Name("read_date/ours");

void ReadDateStrptime(benchmark::State& state) {
  Measure(state, Column(Days(), &Day::typed), [](const std::string& text) {
    tm parts{};
    strptime(text.c_str(), "%d/%m/%Y", &parts);
    return parts;
  });
}
BENCHMARK(ReadDateStrptime)->Name("read_date/strptime");

void FormatDate(benchmark::State& state) {
  const StandardObject standard;
  Measure(state, Column(Days(), &Day::date),
          [&standard](OleDate date) { return standard.FormatTDate2(date, ZQ7DMMMBBBB); });
}
BENCHMARK(FormatDate)->Name("format_date/ours");

/// Measures the formatting of dates and its allocations.
template <typename Call>
void MeasureFormat(benchmark::State& state, const std::vector<OleDate>& dates, Call call) {
  Measure(state, dates, call);
  CountAllocations(state, dates, call);
}

void FormatThai(benchmark::State& state) {
  const StandardObject standard;
  MeasureFormat(state, Column(Days(), &Day::date),
                [&standard](OleDate date) { return standard.FormatThai(date); });
}
BENCHMARK(FormatThai)->Name("format_thai/ours");

void Format2000(benchmark::State& state) {
  const StandardObject standard;
  MeasureFormat(state, Column(Days(), &Day::date),
                [&standard](OleDate date) { return standard.Format2000(date); });
}
BENCHMARK(Format2000)->Name("format_2000/ours");

void FormatTime2(benchmark::State& state) {
  const StandardObject standard;
  MeasureFormat(state, Moments(), [&standard](OleDate date) { return standard.FormatTime2(date); });
}
BENCHMARK(FormatTime2)->Name("format_time/ours");

void FormatQueryTime(benchmark::State& state) {
  const StandardObject standard;
  MeasureFormat(state, Moments(),
                [&standard](OleDate date) { return standard.FormatQueryTime(date); });
}
BENCHMARK(FormatQueryTime)->Name("format_query/ours");

/// Dates as strftime takes them, split in advance.
std::vector<tm> BrokenDown(const std::vector<OleDate>& dates) {
  std::vector<tm> list;
  for (const OleDate date : dates) {
    tm parts{};
    parts.tm_year = date.Year() - 1900;
    parts.tm_mon = date.Month() - 1;
    parts.tm_mday = date.Day();
    parts.tm_hour = date.Hour();
    parts.tm_min = date.Minute();
    parts.tm_sec = date.Second();
    list.push_back(parts);
  }
  return list;
}

void MeasureStrftime(benchmark::State& state, const char* format,
                     const std::vector<OleDate>& dates) {
  const locale_t thai = newlocale(LC_ALL_MASK, "th_TH.UTF-8", nullptr);
  if (thai == nullptr) return state.SkipWithError("no th_TH.UTF-8");
  std::array<char, 128> text;
  Measure(state, BrokenDown(dates), [&text, thai, format](const tm& parts) {
    return strftime_l(text.data(), text.size(), format, &parts, thai);
  });
  freelocale(thai);
}

void FormatDateStrftime(benchmark::State& state) {
  MeasureStrftime(state, "%d %B %Ey", Column(Days(), &Day::date));
}
BENCHMARK(FormatDateStrftime)->Name("format_date/strftime");
BENCHMARK(FormatDateStrftime)->Name("format_thai/strftime");

void Format2000Strftime(benchmark::State& state) {
  MeasureStrftime(state, "%d/%m/%Ey", Column(Days(), &Day::date));
}
BENCHMARK(Format2000Strftime)->Name("format_2000/strftime");

void FormatTimeStrftime(benchmark::State& state) {
  MeasureStrftime(state, "%H:%M:%S", Moments());
}
BENCHMARK(FormatTimeStrftime)->Name("format_time/strftime");

void FormatQueryStrftime(benchmark::State& state) {
  MeasureStrftime(state, "%Y-%m-%d %H:%M:%S", Moments());
}
BENCHMARK(FormatQueryStrftime)->Name("format_query/strftime");

void AddMonth(benchmark::State& state) {
  const StandardObject standard;
  Measure(state, Column(Days(), &Day::date),
          [&standard](OleDate date) { return standard.AddMonth(date, 1); });
}
BENCHMARK(AddMonth)->Name("add_month/ours");

}  // namespace
}  // namespace ZQ7Standard::Bench
