#include <ZQ7Standard/StandardObject.h>

#include <array>

#include "base/code_page.h"
#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

constexpr std::size_t kPageLength = 1024;
constexpr std::size_t kCipherLength = 32'000;
constexpr TextView kPassword = u"Password1";

void Encode(benchmark::State& state) {
  std::array<char, kPageLength> bytes;
  Measure(state, InvoiceTexts(kPageLength), [&bytes](const Text& text) {
    EncodeCodePage(text, bytes.data());
    return bytes.back();
  });
}
BENCHMARK(Encode)->Name("to_code_page/ours");

void Decode(benchmark::State& state) {
  std::array<char16_t, kPageLength> text;
  Measure(state, InvoiceBytes(kPageLength), [&text](const std::string& bytes) {
    DecodeCodePage(bytes, text.data());
    return text.back();
  });
}
BENCHMARK(Decode)->Name("from_code_page/ours");

template <std::size_t Length>
void Md5(benchmark::State& state) {
  const StandardObject standard;
  Measure(state, InvoiceTexts(Length),
          [&standard](const Text& text) { return standard.CalculateMD5(text); });
}
BENCHMARK(Md5<16>)->Name("md5_16/ours");
BENCHMARK(Md5<64>)->Name("md5_64/ours");
BENCHMARK(Md5<1024>)->Name("md5_1024/ours");
BENCHMARK(Md5<1024 * 1024>)->Name("md5_1048576/ours");

void MeasureEncryptBS(benchmark::State& state, const std::vector<Text>& texts) {
  const StandardObject standard;
  Measure(state, texts,
          [&standard](const Text& text) { return standard.EncryptBS(text, kPassword); });
}

void MeasureCopy(benchmark::State& state, const std::vector<Text>& texts) {
  Measure(state, texts, [](const Text& text) { return Text(text); });
}

void EncryptThai(benchmark::State& state) {
  MeasureEncryptBS(state, InvoiceTexts(kCipherLength));
}
BENCHMARK(EncryptThai)->Name("encrypt_thai/ours");

void CopyThai(benchmark::State& state) {
  MeasureCopy(state, InvoiceTexts(kCipherLength));
}
BENCHMARK(CopyThai)->Name("encrypt_thai/copy");

void EncryptAscii(benchmark::State& state) {
  MeasureEncryptBS(state, {Text(kCipherLength, u'7')});
}
BENCHMARK(EncryptAscii)->Name("encrypt_ascii/ours");

void CopyAscii(benchmark::State& state) {
  MeasureCopy(state, {Text(kCipherLength, u'7')});
}
BENCHMARK(CopyAscii)->Name("encrypt_ascii/copy");

}  // namespace
}  // namespace ZQ7Standard::Bench
