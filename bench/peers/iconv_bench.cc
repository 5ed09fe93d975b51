#include <iconv.h>

#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

constexpr std::size_t kLength = 1024;

/// Measures iconv on `inputs`, each of which converts to `output_size` bytes.
template <typename Unit>
void MeasureIconv(benchmark::State& state, const char* to, const char* from,
                  const std::vector<std::basic_string<Unit>>& inputs, std::size_t output_size) {
  const iconv_t converter = iconv_open(to, from);
  std::string output(output_size, '\0');
  std::size_t left = 0;  // of all inputs, in bytes
  Measure(state, inputs, [&](const auto& input) {
    char* in = reinterpret_cast<char*>(const_cast<Unit*>(input.data()));  // it only reads
    char* out = output.data();
    std::size_t in_left = input.size() * sizeof(Unit);
    std::size_t out_left = output.size();
    iconv(converter, &in, &in_left, &out, &out_left);
    left += in_left;
    return out;
  });
  if (left != 0) state.SkipWithError("iconv stopped early");
  iconv_close(converter);
}

void EncodeIconv(benchmark::State& state) {
  MeasureIconv(state, "CP874", "UTF-16LE", InvoiceTexts(kLength), kLength);
}
BENCHMARK(EncodeIconv)->Name("to_code_page/iconv");

void DecodeIconv(benchmark::State& state) {
  MeasureIconv(state, "UTF-16LE", "CP874", InvoiceBytes(kLength), kLength * sizeof(char16_t));
}
BENCHMARK(DecodeIconv)->Name("from_code_page/iconv");

}  // namespace
}  // namespace ZQ7Standard::Bench
