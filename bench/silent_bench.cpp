// What a line costs that goes nowhere: tracing is off, or it is on and no logger was there. Memory counts as
// changed after each round, so nobody can keep in a register what he has found.

#include <benchmark/benchmark.h>

#include "bench/TraceChannel.h"
#include "tessaly/base/Types.h"
#include "tessaly/trace/Trace.h"

namespace tessaly::bench {
namespace {

void doNothing(benchmark::State& state) {
  for (auto _ : state) benchmark::ClobberMemory();
}

void traceLiteral(benchmark::State& state) {
  for (auto _ : state) {
    Trace(u"Opened the document, 3 pages, 17 fields");
    benchmark::ClobberMemory();
  }
}

void traceString(benchmark::State& state) {
  const String text = u"Opened the document, 3 pages, 17 fields";
  for (auto _ : state) {
    Trace(text);
    benchmark::ClobberMemory();
  }
}

void checkThat(bool isSo, benchmark::State& state) {
  if (!isSo) state.SkipWithError("not as it is to be measured");
}

void measureOff(benchmark::State& state, void (*trace)(benchmark::State&)) {
  checkThat(logger == nullptr, state);
  trace(state);
}

void measureAlone(benchmark::State& state) {
  const Client client;
  checkThat(!logger->Connected(), state);
  traceLiteral(state);
}

bool addAll() {
  benchmark::RegisterBenchmark("a line to nowhere/limit: empty loop", &doNothing);
  benchmark::RegisterBenchmark("a line to nowhere/Tessaly, off", &measureOff, &traceLiteral);
  benchmark::RegisterBenchmark("a line to nowhere/Tessaly, off, text in a String", &measureOff, &traceString);
  benchmark::RegisterBenchmark("a line to nowhere/Tessaly, on, no logger there", &measureAlone);
  return true;
}
const bool added = addAll();

}  // namespace
}  // namespace tessaly::bench
