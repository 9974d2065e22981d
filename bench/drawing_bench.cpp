// Drawing beside what a host could use instead, all in one run: copies with a see-through colour, and a
// picture button as a whole. The contestants stand in files of their own; a peer's is built where the peer is
// there.

#include <benchmark/benchmark.h>

#include "bench/DrawingGoals.h"
#include "bench/Summary.h"

int main(int argc, char** argv) {
  using namespace tessaly::bench;
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  Summary summary(drawingGoals());
  return benchmark::RunSpecifiedBenchmarks(&summary) == 0 ? 1 : 0;
}
