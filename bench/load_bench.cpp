// One language file, from its name to its 175 texts. The limit is Expat alone over the same file, which keeps
// nothing: no texts, no test of what the file is. In the second group the file is in windows-1252 and ICU
// turns it into UTF-8 on both sides, since Expat does not know that encoding.

#include <benchmark/benchmark.h>
#include <unicode/ucnv.h>

#include "bench/ExpatAlone.h"
#include "bench/Workplace.h"
#include "tessaly/localisation/CResources.h"

namespace tessaly::bench {
namespace {

constexpr std::string_view kUtf8File = "german.xml";
constexpr std::string_view kAnsiFile = "french.xml";

void expat(benchmark::State& state) {
  const auto path = languageFile(kUtf8File);
  for (auto _ : state) {
    benchmark::DoNotOptimize(countByExpat(readFile(path)));
  }
}
BENCHMARK(expat)->Name("load/limit: Expat alone");

void load(benchmark::State& state, std::string_view name) {
  CResources resources;
  resources.applicationGUID(kShowcase);
  const String path = languageFile(name).u16string();
  for (auto _ : state) {
    resources.LoadXMLFile(path);
    benchmark::ClobberMemory();
  }
  if (resources.res(0) == englishTexts().front()) state.SkipWithError("not loaded");
}
BENCHMARK_CAPTURE(load, utf8, kUtf8File)->Name("load/Tessaly");

std::string ansiInUtf8(const std::string& bytes) {
  std::string utf8(bytes.size() * 3, '\0');
  UErrorCode error = U_ZERO_ERROR;
  const auto length =
      ucnv_convert("UTF-8", "windows-1252", utf8.data(), static_cast<std::int32_t>(utf8.size()), bytes.data(),
                   static_cast<std::int32_t>(bytes.size()), &error);
  utf8.resize(static_cast<std::size_t>(length));
  // Expat is to take the text for what it is now.
  return utf8.replace(utf8.find("windows-1252"), sizeof "windows-1252" - 1, "UTF-8");
}

void expatBehindIcu(benchmark::State& state) {
  const auto path = languageFile(kAnsiFile);
  for (auto _ : state) {
    benchmark::DoNotOptimize(countByExpat(ansiInUtf8(readFile(path))));
  }
}
BENCHMARK(expatBehindIcu)->Name("load, windows-1252/limit: ICU and Expat alone");
BENCHMARK_CAPTURE(load, ansi, kAnsiFile)->Name("load, windows-1252/Tessaly");

}  // namespace
}  // namespace tessaly::bench
