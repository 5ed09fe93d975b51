// Lists, keys, numbered texts and check digits.

#include <ZQ7Standard/StandardObject.h>
#include <benchmark/benchmark.h>

#include <string>

namespace {

using ZQ7Standard::StandardObject;
using ZQ7Standard::Text;
using ZQ7Standard::TextView;

const StandardObject kObject;

template <typename Operation>
void Run(benchmark::State& state, TextView text, Operation operation) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(text);
    benchmark::DoNotOptimize(operation(text));
  }
}

/// The loop that the check digit is measured against: twelve steps, the weights
/// 1 and 3 in turn.
int PlainCheckDigit(TextView code) {
  int sum = 0;
  for (std::size_t i = 0; i < 12; ++i) {
    const char16_t c = code[i];
    const int digit = c >= u'0' && c <= u'9' ? c - u'0' : 0;
    sum += i % 2 == 0 ? digit : digit * 3;
  }
  return (10 - sum % 10) % 10;
}

/// 100 items of 8 characters.
Text HundredItems() {
  Text list;
  for (int i = 0; i < 100; ++i) {
    if (i > 0) list.push_back(u';');
    list.append(u"ITEM-");
    for (const char c : std::to_string(100 + i)) list.push_back(static_cast<char16_t>(c));
  }
  return list;
}

void CheckDigitPlainLoop(benchmark::State& state) {
  Run(state, u"400638133393", PlainCheckDigit);
}
BENCHMARK(CheckDigitPlainLoop);

void GetEAN13ChekDigit(benchmark::State& state) {
  Run(state, u"400638133393", [](TextView code) { return kObject.GetEAN13ChekDigit(code); });
}
BENCHMARK(GetEAN13ChekDigit);

void GetITF14ChekDigit(benchmark::State& state) {
  Run(state, u"1540014128876", [](TextView code) { return kObject.GetITF14ChekDigit(code); });
}
BENCHMARK(GetITF14ChekDigit);

void FormatPrimaryKey(benchmark::State& state) {
  Run(state, u" cust'0042 ; siam  trading ",
      [](TextView key) { return kObject.FormatPrimaryKey(key, 0, 0, 1, 0, 1); });
}
BENCHMARK(FormatPrimaryKey);

void FormatPrimaryKeyThai(benchmark::State& state) {
  Run(state, u" บริษัท สยาม  การค้า; จำกัด ",
      [](TextView key) { return kObject.FormatPrimaryKey(key, 0, 0, 1, 0, 1); });
}
BENCHMARK(FormatPrimaryKeyThai);

void FormatIP(benchmark::State& state) {
  Run(state, u"192.168.001.010", [](TextView address) { return kObject.FormatIP(address); });
}
BENCHMARK(FormatIP);

void AddListNewItem(benchmark::State& state) {
  const Text list = HundredItems();
  Run(state, list, [](TextView items) { return kObject.AddList(items, u"ITEM-200"); });
}
BENCHMARK(AddListNewItem);

void AddListLastItem(benchmark::State& state) {
  const Text list = HundredItems();
  Run(state, list, [](TextView items) { return kObject.AddList(items, u"ITEM-199"); });
}
BENCHMARK(AddListLastItem);

void ReverseList(benchmark::State& state) {
  Run(state, u"one,two,three,four,five,six,seven,eight,nine,ten",
      [](TextView list) { return kObject.ReverseList(list); });
}
BENCHMARK(ReverseList);

void IncreaseString(benchmark::State& state) {
  Run(state, u"INV-2024-000099", [](TextView key) { return kObject.IncreaseString(key); });
}
BENCHMARK(IncreaseString);

void FormatTextSort(benchmark::State& state) {
  Run(state, u"inv-2024-99", [](TextView key) { return kObject.FormatTextSort(key, 20); });
}
BENCHMARK(FormatTextSort);

void ReverseString(benchmark::State& state) {
  const Text text(static_cast<std::size_t>(state.range(0)), u'ก');
  Run(state, text, [](TextView characters) { return kObject.ReverseString(characters); });
}
BENCHMARK(ReverseString)->Arg(16)->Arg(1024);

void TrimSpaceToOne(benchmark::State& state) {
  Run(state, u"  Siam   Trading  Company   Limited ",
      [](TextView text) { return kObject.TrimSpaceToOne(text); });
}
BENCHMARK(TrimSpaceToOne);

void Random(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(kObject.Random(1, 100));
}
BENCHMARK(Random);

}  // namespace
