// pugixml: a whole document in memory, then a walk that takes the 175 texts out of it. It looks for the
// sections where the showcase's files have them and nowhere else, and does not test what the file is.

#include <benchmark/benchmark.h>

#include <array>
#include <pugixml.hpp>

#include "bench/Workplace.h"
#include "tessaly/base/Text.h"
#include "tessaly/localisation/BuiltInStrings.h"

namespace tessaly::bench {
namespace {

using Texts = std::array<String, kStringCount>;

void fill(Texts& texts, const pugi::xml_document& document) {
  for (const pugi::xml_node entry : document.child("LANGUAGE").child("STRINGS").children("STRING")) {
    const auto number = entry.child("ID").text().as_uint();
    if (number >= 1 && number <= texts.size()) texts[number - 1] = fromUtf8(entry.child_value("VALUE"));
  }
}

void load(benchmark::State& state) {
  const std::string path = languageFile("german.xml").string();
  Texts texts;
  for (auto _ : state) {
    texts = {};
    pugi::xml_document document;
    if (!document.load_file(path.c_str())) state.SkipWithError("pugixml does not load");
    fill(texts, document);
    benchmark::DoNotOptimize(texts);
  }
  if (texts.back().empty()) state.SkipWithError("pugixml gives no texts");
}
BENCHMARK(load)->Name("load/pugixml");

}  // namespace
}  // namespace tessaly::bench
