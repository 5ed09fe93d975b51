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

/// The days as strftime takes them, taken apart beforehand.
std::vector<tm> BrokenDownDays() {
  std::vector<tm> list;
  for (const OleDate date : Column(Days(), &Day::date)) {
    tm parts{};
    parts.tm_year = date.Year() - 1900;
    parts.tm_mon = date.Month() - 1;
    parts.tm_mday = date.Day();
    list.push_back(parts);
  }
  return list;
}

void FormatDateStrftime(benchmark::State& state) {
  const locale_t thai = newlocale(LC_ALL_MASK, "th_TH.UTF-8", nullptr);
  if (thai == nullptr) return state.SkipWithError("no th_TH.UTF-8");
  std::array<char, 128> text;
  Measure(state, BrokenDownDays(), [&text, thai](const tm& parts) {
    return strftime_l(text.data(), text.size(), "%d %B %Ey", &parts, thai);
  });
  freelocale(thai);
}
BENCHMARK(FormatDateStrftime)->Name("format_date/strftime");

void AddMonth(benchmark::State& state) {
  const StandardObject standard;
  Measure(state, Column(Days(), &Day::date),
          [&standard](OleDate date) { return standard.AddMonth(date, 1); });
}
BENCHMARK(AddMonth)->Name("add_month/ours");

}  // namespace
}  // namespace ZQ7Standard::Bench
