#include <ZQ7Standard/BitByteObject.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/automation/invoke.h>

#include <array>
#include <vector>

#include "bench/measure.h"

// The cost of a call by name compared with a direct call.
namespace ZQ7Standard::Bench {
namespace {

using Automation::Create;
using Automation::ExampleServices;
using Automation::Invoke;
using Automation::Object;
using Automation::Value;

template <typename Call>
void MeasureCalls(benchmark::State& state, Call call) {
  constexpr std::array<int, 100> kCalls = {};
  const auto ignore_index = [&](int /*call*/) { return call(); };
  Measure(state, kCalls, ignore_index);
  CountAllocations(state, kCalls, ignore_index);
}

/// Measures an operation called by name with the given values.
template <typename... Arguments>
void MeasureByName(benchmark::State& state, const Object& object, const char* operation,
                   const Arguments&... arguments) {
  const std::vector<Value> values = {arguments...};
  MeasureCalls(state, [&] { return Invoke(object, operation, {values}); });
}

StandardObject Standard() {
  const auto services = ExampleServices();
  return StandardObject({.clock = services.clock, .date_convention = services.date_convention});
}

void BitReadDirect(benchmark::State& state) {
  const BitByteObject bits;
  MeasureCalls(state, [&] { return bits.BitRead(5, 1); });
}
BENCHMARK(BitReadDirect)->Name("call_bit_read/direct");

void BitReadByName(benchmark::State& state) {
  MeasureByName(state, Create("BitByteObject"), "BitRead", std::int16_t{5}, std::int16_t{1});
}
BENCHMARK(BitReadByName)->Name("call_bit_read/ours");

void FloorDirect(benchmark::State& state) {
  const StandardObject standard = Standard();
  MeasureCalls(state, [&] { return standard.Floor(1234.567); });
}
BENCHMARK(FloorDirect)->Name("call_floor/direct");

void FloorByName(benchmark::State& state) {
  MeasureByName(state, Create("StandardObject", ExampleServices()), "Floor", 1234.567);
}
BENCHMARK(FloorByName)->Name("call_floor/ours");

void AddMonthDirect(benchmark::State& state) {
  const StandardObject standard = Standard();
  const OleDate date = OleDate::FromParts(2024, 1, 31);
  MeasureCalls(state, [&] { return standard.AddMonth(date, 1); });
}
BENCHMARK(AddMonthDirect)->Name("call_add_month/direct");

void AddMonthByName(benchmark::State& state) {
  MeasureByName(state, Create("StandardObject", ExampleServices()), "AddMonth",
                OleDate::FromParts(2024, 1, 31), 1);
}
BENCHMARK(AddMonthByName)->Name("call_add_month/ours");

void StrValDirect(benchmark::State& state) {
  const StandardObject standard = Standard();
  const Text text = u"1,234.50";
  MeasureCalls(state, [&] { return standard.StrVal(text); });
}
BENCHMARK(StrValDirect)->Name("call_str_val/direct");

void StrValByName(benchmark::State& state) {
  MeasureByName(state, Create("StandardObject", ExampleServices()), "StrVal", Text(u"1,234.50"));
}
BENCHMARK(StrValByName)->Name("call_str_val/ours");

void FormatPrimaryKeyDirect(benchmark::State& state) {
  const StandardObject standard = Standard();
  const Text text = u"INV 0042";
  MeasureCalls(state, [&] { return standard.FormatPrimaryKey(text); });
}
BENCHMARK(FormatPrimaryKeyDirect)->Name("call_format_primary_key/direct");

void FormatPrimaryKeyByName(benchmark::State& state) {
  MeasureByName(state, Create("StandardObject", ExampleServices()), "FormatPrimaryKey",
                Text(u"INV 0042"));
}
BENCHMARK(FormatPrimaryKeyByName)->Name("call_format_primary_key/ours");

}  // namespace
}  // namespace ZQ7Standard::Bench
