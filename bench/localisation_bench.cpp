// The resource catalogue beside what a host could use instead, all in one run. The benchmarks stand in the
// files of their subjects; a peer's are all in one file, which is built where the peer is there.

#include <benchmark/benchmark.h>

#include "bench/Summary.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  tessaly::bench::Summary summary;
  return benchmark::RunSpecifiedBenchmarks(&summary) == 0 ? 1 : 0;
}
