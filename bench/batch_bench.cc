#include <memory>
#include <ostream>
#include <sstream>
#include <string>

#include "batch.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

constexpr int kLines = 1024;

/// Calls that succeed and fail, with positional and named arguments, on new objects and on a named
/// one.
std::string MixedLines() {
  std::string lines =
      "{\"class\":\"GridValueObject\",\"object\":\"grid\",\"call\":\"SetCols\",\"args\":[9]}\n";
  for (int i = 1; i < kLines; ++i) {
    const std::string id = std::to_string(i);
    lines += "{\"id\":" + id + ",";
    switch (i % 4) {
      case 0:
        lines +=
            R"("object":"grid","call":"Setvalue","args":[)" + std::to_string(i % 50) + ",2,0.5]}";
        break;
      case 1:
        lines += R"("class":"StandardObject","call":"CTDATE","args":["15/1/2567"]})";
        break;
      case 2:
        lines += R"("class":"StandardObject","call":"CTDATE","args":["1/15/2567"]})";
        break;
      default:
        lines +=
            R"("class":"BahtStringObject","call":"BahtString","args":{"inDouble":)" + id + ".5}}";
    }
    lines += '\n';
  }
  return lines;
}

class NullBuffer final : public std::streambuf {
 protected:
  std::streamsize xsputn(const char* /*bytes*/, std::streamsize size) override { return size; }
  int_type overflow(int_type c) override { return c; }
};

void BatchLines(benchmark::State& state) {
  const std::string lines = MixedLines();
  NullBuffer nowhere;
  std::ostream out(&nowhere);
  for (auto _ : state) {
    std::stringbuf in(lines);
    ZQ7Tool::RunBatch(in, out, ZQ7Tool::Settings{.example = true});
  }
  using benchmark::Counter;
  const auto answered = state.iterations() * kLines;
  state.SetItemsProcessed(answered);
  state.counters["call"] =
      Counter(static_cast<double>(answered), Counter::kIsRate | Counter::kInvert);
}
BENCHMARK(BatchLines)->Name("batch_lines/ours");

}  // namespace
}  // namespace ZQ7Standard::Bench
