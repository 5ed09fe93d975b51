#include <ZQ7Standard/automation/invoke.h>
#include <zq7standard.h>

#include <array>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/measure.h"

// The cost of a call through the C interface compared with `Invoke` of a found operation.
namespace ZQ7Standard::Bench {
namespace {

using Automation::Value;

/// A call whose arguments both sides write as they need them.
struct Call {
  const char* name;
  const char* class_name;
  const char* operation;
  std::vector<Value> arguments;
};

const std::vector<Call>& Calls() {
  static const std::vector<Call> calls = {
      {"c_bit_read", "BitByteObject", "BitRead", {std::int16_t{5}, std::int16_t{1}}},
      {"c_floor", "StandardObject", "Floor", {1234.567}},
      {"c_add_month", "StandardObject", "AddMonth", {OleDate::FromParts(2024, 1, 31), 1}},
      {"c_str_val", "StandardObject", "StrVal", {Text(u"1,234.50")}},
      {"c_format_primary_key", "StandardObject", "FormatPrimaryKey", {Text(u"INV 0042")}},
      {"c_baht_string", "BahtStringObject", "BahtString", {1234.56}}};
  return calls;
}

constexpr std::array<int, 100> kRepeats = {};

void ByInvoke(benchmark::State& state, const Call& call) {
  const Automation::Object object = Automation::Create(call.class_name);
  const auto& operation = *Automation::FindOperation(object.Class(), call.operation);
  Measure(state, kRepeats,
          [&](int /*repeat*/) { return Invoke(object, operation, {call.arguments}); });
}

/// The arguments as a host in C has them.
std::vector<zq7_value> InC(const std::vector<Value>& arguments) {
  std::vector<zq7_value> values;
  for (const Value& argument : arguments) {
    zq7_value& value = values.emplace_back();
    if (const auto* text = std::get_if<Text>(&argument)) {
      value.tag = ZQ7_TEXT;
      value.text = text->data();
      value.length = text->size();
    } else if (const auto* date = std::get_if<OleDate>(&argument)) {
      value.tag = ZQ7_DATE;
      value.number = date->Days();
    } else if (const auto* number = std::get_if<double>(&argument)) {
      value.tag = ZQ7_DOUBLE;
      value.number = *number;
    } else if (const auto* integer = std::get_if<std::int16_t>(&argument)) {
      value.tag = ZQ7_INTEGER;
      value.integer = *integer;
    } else {
      value.tag = ZQ7_LONG;
      value.integer = std::get<std::int32_t>(argument);
    }
  }
  return values;
}

void ByC(benchmark::State& state, const Call& call) {
  zq7_object* object = nullptr;
  if (zq7_create(call.class_name, nullptr, &object) != ZQ7_OK) std::abort();
  const int32_t number = zq7_find_member(zq7_class_of(object), call.operation)->number;
  const std::vector<zq7_value> arguments = InC(call.arguments);
  Measure(state, kRepeats, [&](int /*repeat*/) {
    zq7_value result;
    const zq7_status status =
        zq7_invoke(object, number, arguments.data(), arguments.size(), &result);
    if (status != ZQ7_OK) std::abort();
    benchmark::DoNotOptimize(result);
    zq7_value_clear(&result);
    return status;
  });
  zq7_release(object);
}

[[maybe_unused]] const bool registered = [] {
  for (const Call& call : Calls()) {
    const std::string name = call.name;
    benchmark::RegisterBenchmark((name + "/direct").c_str(), ByInvoke, call);
    benchmark::RegisterBenchmark((name + "/ours").c_str(), ByC, call);
  }
  return true;
}();

}  // namespace
}  // namespace ZQ7Standard::Bench
