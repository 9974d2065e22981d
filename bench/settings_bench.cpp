// The settings beside what a host could use instead, all in one run: reads with few and with many values,
// with and without another process that writes ten times a second, and writes that are on disk when the call
// returns. The contestants stand in files of their own; a peer's is built where the peer is there.

#include <benchmark/benchmark.h>

#include "bench/Contestant.h"
#include "bench/Folder.h"
#include "bench/SettingsGoals.h"
#include "bench/SettingsHives.h"
#include "bench/Summary.h"

int main(int argc, char** argv) {
  using namespace tessaly::bench;
  if (runAsWriter(argc, argv)) return 0;
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  useOwnHives();
  benchmark::AddCustomContext("files in", temporaryFolder().string());
  benchmark::AddCustomContext("file system", fileSystemOf(temporaryFolder()));
  Summary summary(settingsGoals());
  return benchmark::RunSpecifiedBenchmarks(&summary) == 0 ? 1 : 0;
}
