// The look through a folder of 40 language files, which a new catalogue does once. The files are the
// showcase's that Expat can read by itself (UTF-8, UTF-16 and ISO-8859-1), eight times each. The limit is
// Expat alone over the same files, listing and reading included.

#include <benchmark/benchmark.h>

#include "bench/ExpatAlone.h"
#include "bench/Workplace.h"
#include "tessaly/localisation/CResources.h"

namespace tessaly::bench {
namespace {

constexpr int kCopies = 8;
constexpr Long kFiles = 40;

std::filesystem::path folderOfFiles() {
  std::filesystem::path folder = newFolder("scan");
  for (const std::string name : {"arabic", "german", "greek", "japanese", "spanish"}) {
    for (int copy = 0; copy < kCopies; ++copy) {
      std::filesystem::copy_file(languageFile(name + ".xml"), folder / (name + std::to_string(copy) + ".xml"),
                                 std::filesystem::copy_options::skip_existing);
    }
  }
  return folder;
}

void expat(benchmark::State& state) {
  const auto folder = folderOfFiles();
  for (auto _ : state) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      benchmark::DoNotOptimize(countByExpat(readFile(entry.path())));
    }
  }
}
BENCHMARK(expat)->Name("scan of 40 files/limit: Expat alone");

void scan(benchmark::State& state) {
  const String folder = folderOfFiles().u16string();
  Long count = 0;
  for (auto _ : state) {
    CResources resources;
    resources.applicationGUID(kShowcase);
    resources.resourcesPath(folder);
    count = resources.numberOfLangs();
  }
  if (count != kFiles) state.SkipWithError("not all files are listed");
}
BENCHMARK(scan)->Name("scan of 40 files/Tessaly");

}  // namespace
}  // namespace tessaly::bench
