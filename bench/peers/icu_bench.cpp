// ICU's resource bundles: a text is found by its place in an array and copied.

#include <benchmark/benchmark.h>
#include <unicode/ures.h>

#include <memory>

#include "bench/Workplace.h"

namespace tessaly::bench {
namespace {

struct CloseBundle {
  void operator()(UResourceBundle* bundle) const { ures_close(bundle); }
};
using Bundle = std::unique_ptr<UResourceBundle, CloseBundle>;

std::filesystem::path compiled() {
  std::filesystem::path folder = newFolder("icu");
  std::string source = "fr { texts {\n";
  for (const std::string& text : inUtf8(frenchTexts())) {
    source += '"';
    for (const char c : text) source.append(c == '"' || c == '\\' ? 1 : 0, '\\') += c;
    source += "\",\n";
  }
  writeFile(folder / "fr.txt", source + "} }\n");
  runTool(TESSALY_GENRB " -q -e UTF-8 -s '" + folder.string() + "' -d '" + folder.string() + "' fr.txt");
  return folder;
}

void lookUp(benchmark::State& state) {
  UErrorCode error = U_ZERO_ERROR;
  const Bundle bundle(ures_openDirect(compiled().c_str(), "fr", &error));
  const Bundle texts(ures_getByKey(bundle.get(), "texts", nullptr, &error));
  String text;
  for (auto _ : state) {
    for (std::int32_t n = 0; n < ures_getSize(texts.get()); ++n) {
      std::int32_t length = 0;
      const UChar* characters = ures_getStringByIndex(texts.get(), n, &length, &error);
      text = String(characters, static_cast<std::size_t>(length));
      benchmark::DoNotOptimize(text);
    }
  }
  if (U_FAILURE(error) || text != frenchTexts().back()) state.SkipWithError("ICU gives no French");
}
BENCHMARK(lookUp)->Name("res/ICU resource bundle");

}  // namespace
}  // namespace tessaly::bench
