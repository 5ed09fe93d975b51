#include <unicode/ucnv.h>

#include <array>
#include <memory>

#include "bench/icu/icu.h"
#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

constexpr std::size_t kLength = 1024;
constexpr auto kRoom = static_cast<std::int32_t>(kLength) + 1;  // with a zero at the end

using Converter = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

Converter OpenConverter(UErrorCode& status) {
  return {ucnv_open("windows-874", &status), ucnv_close};
}

void EncodeIcu(benchmark::State& state) {
  UErrorCode status = U_ZERO_ERROR;
  const Converter converter = OpenConverter(status);
  std::array<char, kRoom> bytes;
  Measure(state, InvoiceTexts(kLength), [&](const Text& text) {
    return ucnv_fromUChars(converter.get(), bytes.data(), kRoom, text.data(),
                           static_cast<std::int32_t>(text.size()), &status);
  });
  Check(state, status);
}
BENCHMARK(EncodeIcu)->Name("to_code_page/icu");

void DecodeIcu(benchmark::State& state) {
  UErrorCode status = U_ZERO_ERROR;
  const Converter converter = OpenConverter(status);
  std::array<char16_t, kRoom> text;
  Measure(state, InvoiceBytes(kLength), [&](const std::string& bytes) {
    return ucnv_toUChars(converter.get(), text.data(), kRoom, bytes.data(),
                         static_cast<std::int32_t>(bytes.size()), &status);
  });
  Check(state, status);
}
BENCHMARK(DecodeIcu)->Name("from_code_page/icu");

}  // namespace
}  // namespace ZQ7Standard::Bench
