#include "bench/Contestant.h"

namespace tessaly::bench {

std::string group(std::string_view what, const Store& store, bool besideWriter) {
  return std::string(what) + ", " + std::string(store.values) + (besideWriter ? ", beside a writer" : "");
}

void measureBesideWriter(benchmark::internal::Benchmark& measured) { measured.UseRealTime()->MinTime(0.3); }

}  // namespace tessaly::bench
