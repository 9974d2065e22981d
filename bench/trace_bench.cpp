// Tracing beside what a host could use instead, all in one run: a line that goes nowhere, and one that goes
// to another process or into a file. The contestants stand in files of their own; a peer's is built where the
// peer is there.

#include <benchmark/benchmark.h>

#include "bench/Folder.h"
#include "bench/Summary.h"
#include "bench/TraceChannel.h"
#include "bench/TraceGoals.h"

int main(int argc, char** argv) {
  using namespace tessaly::bench;
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  useOwnChannel();
  benchmark::AddCustomContext("files in", temporaryFolder().string());
  benchmark::AddCustomContext("file system", fileSystemOf(temporaryFolder()));
  Summary summary(traceGoals());
  return benchmark::RunSpecifiedBenchmarks(&summary) == 0 ? 1 : 0;
}
