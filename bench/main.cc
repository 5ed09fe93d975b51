#include <benchmark/benchmark.h>
#include <stdlib.h>

int main(int argc, char** argv) {
  // The hosts' locale: objects that ask the system find day first and the Buddhist Era. The C
  // library's own locale does not change.
  setenv("LC_ALL", "th_TH.UTF-8", 1);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
