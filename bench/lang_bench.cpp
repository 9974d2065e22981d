// A change of language by number, there and back: each call reads the chosen language's file again. The limit
// is Expat alone over the same two files, reading included.

#include <benchmark/benchmark.h>

#include "bench/ExpatAlone.h"
#include "bench/Workplace.h"
#include "tessaly/localisation/CResources.h"

namespace tessaly::bench {
namespace {

constexpr Long kGerman = 1031;
constexpr Long kSpanish = 3082;

std::filesystem::path folderOfTwo() {
  std::filesystem::path folder = newFolder("lang");
  for (const char* name : {"german.xml", "spanish.xml"}) {
    std::filesystem::copy_file(languageFile(name), folder / name,
                               std::filesystem::copy_options::skip_existing);
  }
  return folder;
}

void expat(benchmark::State& state) {
  const auto folder = folderOfTwo();
  for (auto _ : state) {
    benchmark::DoNotOptimize(countByExpat(readFile(folder / "german.xml")));
    benchmark::DoNotOptimize(countByExpat(readFile(folder / "spanish.xml")));
  }
}
BENCHMARK(expat)->Name("lang, there and back/limit: Expat alone");

void lang(benchmark::State& state) {
  CResources resources;
  resources.applicationGUID(kShowcase);
  resources.resourcesPath(folderOfTwo().u16string());
  for (auto _ : state) {
    resources.lang(kGerman);
    resources.lang(kSpanish);
    benchmark::ClobberMemory();
  }
  if (resources.langName().empty() || resources.res(0) == englishTexts().front())
    state.SkipWithError("not Spanish");
}
BENCHMARK(lang)->Name("lang, there and back/Tessaly");

}  // namespace
}  // namespace tessaly::bench
