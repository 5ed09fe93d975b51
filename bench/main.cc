#include <benchmark/benchmark.h>
#include <stdlib.h>

int main(int argc, char** argv) {
  // The locale of the hosts: objects that ask the system find day first and the
  // Buddhist era. The C library's own locale stays as it is.
  setenv("LC_ALL", "th_TH.UTF-8", 1);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
