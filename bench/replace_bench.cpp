// A text with two placeholders, once with numbers and once with texts. The limit is a replace-all written for
// the place: it knows its arguments' types, and texts come to it converted.

#include <benchmark/benchmark.h>

#include <array>
#include <charconv>

#include "bench/Workplace.h"
#include "tessaly/localisation/CResources.h"

namespace tessaly::bench {
namespace {

constexpr Long kPageOfPages = 13;
constexpr Long kFileNotOpened = 157;
constexpr std::u16string_view kFile = u"Quarterly.report";
constexpr std::u16string_view kReason = u"access denied";

void replaceAll(String& text, std::u16string_view word, std::u16string_view replacement) {
  for (auto place = text.find(word); place != String::npos;
       place = text.find(word, place + replacement.size())) {
    text.replace(place, word.size(), replacement);
  }
}

String decimal(Long number) {
  std::array<char, 12> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return {digits.data(), result.ptr};
}

/// Keeps the compiler from working with the values that it sees here.
template <class T>
T hidden(T value) {
  benchmark::DoNotOptimize(value);
  return value;
}

void load(CResources& resources) {
  resources.applicationGUID(kShowcase);
  resources.LoadXMLFile(languageFile("french.xml").u16string());
}

void replaceNumbers(benchmark::State& state) {
  const String pattern = frenchTexts()[kPageOfPages];
  Long page = hidden(3);
  Long pages = hidden(9);
  for (auto _ : state) {
    String text = pattern;
    replaceAll(text, u"%a1", decimal(page));
    replaceAll(text, u"%a2", decimal(pages));
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(replaceNumbers)->Name("resWithArg, numbers/limit: replace-all");

void resWithNumbers(benchmark::State& state) {
  CResources resources;
  load(resources);
  Long page = hidden(3);
  Long pages = hidden(9);
  for (auto _ : state) {
    String text = resources.resWithArg(kPageOfPages, page, pages);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(resWithNumbers)->Name("resWithArg, numbers/Tessaly");

void replaceTexts(benchmark::State& state) {
  const String pattern = frenchTexts()[kFileNotOpened];
  const String file = hidden(String(kFile));
  const String reason = hidden(String(kReason));
  for (auto _ : state) {
    String text = pattern;
    replaceAll(text, u"%a1", file);
    replaceAll(text, u"%a2", reason);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(replaceTexts)->Name("resWithArg, texts/limit: replace-all");

void resWithTexts(benchmark::State& state) {
  CResources resources;
  load(resources);
  const Variant file = hidden(String(kFile));
  const Variant reason = hidden(String(kReason));
  for (auto _ : state) {
    String text = resources.resWithArg(kFileNotOpened, file, reason);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(resWithTexts)->Name("resWithArg, texts/Tessaly");

/// As a host writes it, with texts of its own that each become a Variant for the call.
void resWithTextsOfHost(benchmark::State& state) {
  CResources resources;
  load(resources);
  const String file = hidden(String(kFile));
  const String reason = hidden(String(kReason));
  for (auto _ : state) {
    String text = resources.resWithArg(kFileNotOpened, file, reason);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(resWithTextsOfHost)->Name("resWithArg, texts/Tessaly, Variants made too");

}  // namespace
}  // namespace tessaly::bench
