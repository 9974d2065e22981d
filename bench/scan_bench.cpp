// The look through a folder of 40 files, which a new catalogue does once. 30 are languages: the showcase's
// that Expat can read by itself (UTF-8, UTF-16 and ISO-8859-1), six times each. Five are cut in their middle,
// five are another application's. The limit is Expat alone over the same files, listing and reading included.

#include <benchmark/benchmark.h>
#include <expat.h>

#include "bench/ExpatAlone.h"
#include "bench/Workplace.h"
#include "tessaly/localisation/CResources.h"

namespace tessaly::bench {
namespace {

constexpr int kCopies = 6;
/// The languages, and the broken files, which stand there without a name.
constexpr Long kListed = 35;

std::string cutInTheMiddle(std::string document) {
  document.resize(document.size() / 2);
  return document;
}

std::string ofAnotherApplication() {
  constexpr std::string_view element = "<GUID>";
  std::string document = readFile(languageFile("german.xml"));
  document.replace(document.find(element) + element.size(), 4, "none");
  return document;
}

std::filesystem::path folderOfFiles() {
  std::filesystem::path folder = newFolder("scan");
  const auto put = [&](const std::string& name, std::string_view document) {
    writeFile(folder / (name + ".xml"), document);
  };
  for (const std::string name : {"arabic", "german", "greek", "japanese", "spanish"}) {
    const std::string document = readFile(languageFile(name + ".xml"));
    for (int copy = 0; copy < kCopies; ++copy) put(name + std::to_string(copy), document);
    put(name + "-broken", cutInTheMiddle(document));
    put(name + "-foreign", ofAnotherApplication());
  }
  return folder;
}

XmlCount& countOf(void* data) { return *static_cast<XmlCount*>(data); }

/// Expat's plain walk as far as the document is well-formed.
XmlCount countAsFarAsExpatGoes(std::string_view document) {
  XmlCount count;
  XML_Parser parser = XML_ParserCreate(nullptr);
  XML_SetUserData(parser, &count);
  XML_SetElementHandler(
      parser, [](void* data, const char*, const char**) { ++countOf(data).elements; },
      [](void*, const char*) {});
  XML_SetCharacterDataHandler(parser, [](void* data, const char*, int length) {
    countOf(data).characters += static_cast<std::size_t>(length);
  });
  XML_Parse(parser, document.data(), static_cast<int>(document.size()), XML_TRUE);
  XML_ParserFree(parser);
  return count;
}

void expat(benchmark::State& state) {
  const auto folder = folderOfFiles();
  for (auto _ : state) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      benchmark::DoNotOptimize(countAsFarAsExpatGoes(readFile(entry.path())));
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
  if (count != kListed) state.SkipWithError("the list is not as it should be");
}
BENCHMARK(scan)->Name("scan of 40 files/Tessaly");

}  // namespace
}  // namespace tessaly::bench
