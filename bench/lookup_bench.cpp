// All 175 texts, in order. The limit is what any owner of such texts must do: copy them out of an array.

#include <benchmark/benchmark.h>

#include "bench/Workplace.h"
#include "tessaly/localisation/CResources.h"

namespace tessaly::bench {
namespace {

void plainCopy(benchmark::State& state) {
  const std::vector<String>& texts = frenchTexts();
  for (auto _ : state) {
    for (const String& text : texts) {
      String copy = text;
      benchmark::DoNotOptimize(copy);
    }
  }
}
BENCHMARK(plainCopy)->Name("res/limit: plain copy");

void res(benchmark::State& state) {
  CResources resources;
  resources.applicationGUID(kShowcase);
  resources.LoadXMLFile(languageFile("french.xml").u16string());
  for (auto _ : state) {
    for (Long n = 0; n < kStringCount; ++n) {
      String text = resources.res(n);
      benchmark::DoNotOptimize(text);
    }
  }
}
BENCHMARK(res)->Name("res/Tessaly");

}  // namespace
}  // namespace tessaly::bench
