// fmt, with a pattern that is known only at run time, as a translated one is: in UTF-8 and in UTF-16.

#include <benchmark/benchmark.h>
#include <fmt/format.h>
#include <fmt/xchar.h>

#include "bench/Workplace.h"

namespace tessaly::bench {
namespace {

template <class Character>
using Text = std::basic_string<Character>;
template <class Character>
using View = fmt::basic_string_view<Character>;

template <class Character>
Text<Character> ascii(std::string_view text) {
  return {text.begin(), text.end()};
}

/// The French text 157 with fmt's placeholders, without its accents.
constexpr std::string_view kTextPattern = "Impossible d'ouvrir le fichier {0} : {1}";

template <class Character, class Argument>
void format(benchmark::State& state, const Text<Character>& pattern, Argument first, Argument second) {
  benchmark::DoNotOptimize(first);
  benchmark::DoNotOptimize(second);
  for (auto _ : state) {
    Text<Character> text = fmt::vformat(View<Character>(pattern),
                                        fmt::make_format_args<fmt::buffer_context<Character>>(first, second));
    benchmark::DoNotOptimize(text);
  }
}

template <class Character>
void numbers(benchmark::State& state) {
  format<Character>(state, ascii<Character>("Page {0} sur {1}"), 3, 9);
}
BENCHMARK_TEMPLATE(numbers, char)->Name("resWithArg, numbers/fmt, UTF-8");
BENCHMARK_TEMPLATE(numbers, char16_t)->Name("resWithArg, numbers/fmt, UTF-16");

template <class Character>
void texts(benchmark::State& state) {
  format<Character>(state, ascii<Character>(kTextPattern), ascii<Character>("Quarterly.report"),
                    ascii<Character>("access denied"));
}
BENCHMARK_TEMPLATE(texts, char)->Name("resWithArg, texts/fmt, UTF-8");
BENCHMARK_TEMPLATE(texts, char16_t)->Name("resWithArg, texts/fmt, UTF-16");

}  // namespace
}  // namespace tessaly::bench
