#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "bench/OtherProcess.h"
#include "bench/SettingsPlaces.h"
#include "bench/WriteTurns.h"

/// What the contestants are measured at. A contestant is a class that is opened for a store and for places in
/// it, which it may prepare its own names of:
///
///     Contestant(const Store& store, const std::vector<Place>& places);
///     Long number(std::size_t place);             the number at the place's index, or the default
///     Text text(std::size_t place);               the text there, in the form that a host gets
///     static std::string plain(const Text& text);
///     void write(std::size_t place, Long value);  on disk when it returns
///     static constexpr const char* kKind          whose store it is, for the other process that writes
///
/// The store is made where it is missing.
namespace tessaly::bench {

/// Which of the measurements a contestant takes part in.
struct Discipline {
  bool besideWriter = true;
  bool besideWriterOfMany = true;
  bool missing = true;
  bool random = true;
  bool writes = true;
  bool writesOfMany = true;
};

std::string group(std::string_view what, const Store& store, bool besideWriter = false);

/// What a benchmark beside a writer has in common: real time, and long enough for several writes.
void measureBesideWriter(benchmark::internal::Benchmark& measured);

template <class Contestant>
class Entry {
 public:
  Entry(const std::string& name, Discipline discipline) : name_(name) {
    for (const Store* store : {&kFew, &kMany}) {
      addFixed(*store, false);
      if (discipline.besideWriter && (store == &kFew || discipline.besideWriterOfMany))
        addFixed(*store, true);
      if (discipline.missing) addNumbers("missing value", *store, missingPlace(*store), false);
      if (store == &kFew ? discipline.writes : discipline.writesOfMany)
        addDurableWriter(name, *store, &openWriter);
    }
    if (discipline.random) {
      addNumbers("one of 4,096 numbers", kMany, somePlaces(kMany), false);
      addNumbers("one of 100,000 numbers", kMany, allPlaces(kMany), false);
    }
    if (discipline.besideWriter) addWriter(Contestant::kKind, &writeTo);
  }

 private:
  using Places = std::vector<Place>;

  static void readNumbers(benchmark::State& state, const Store& store, const Places& places,
                          bool besideWriter) {
    Contestant contestant(store, places);
    readOnce(state, contestant, places);
    const std::optional<OtherProcess> writer = writerTo(store, besideWriter);
    std::size_t next = 0;
    for (auto _ : state) {
      Long number = contestant.number(next);
      benchmark::DoNotOptimize(number);
      if (++next == places.size()) next = 0;
    }
  }

  /// Whoever keeps what it has read has it from here on; so many numbers are few enough for that.
  static void readOnce(benchmark::State& state, Contestant& contestant, const Places& places) {
    for (std::size_t n = 0; n < std::min(places.size(), kSomePlaces); ++n) {
      if (contestant.number(n) != numberAt(places[n])) state.SkipWithError("a wrong number");
    }
  }

  static void readText(benchmark::State& state, const Store& store, const Places& places, bool besideWriter) {
    Contestant contestant(store, places);
    if (Contestant::plain(contestant.text(0)) != textAt(places[0])) state.SkipWithError("a wrong text");
    const std::optional<OtherProcess> writer = writerTo(store, besideWriter);
    for (auto _ : state) {
      auto text = contestant.text(0);
      benchmark::DoNotOptimize(text);
    }
  }

  static DurableWriter openWriter(const Store& store) {
    const auto contestant = std::make_shared<Contestant>(store, writtenPlace(store));
    return {[contestant](Long value) { contestant->write(0, value); },
            [contestant] { return contestant->number(0); }};
  }

  static std::optional<OtherProcess> writerTo(const Store& store, bool wanted) {
    return wanted ? std::make_optional<OtherProcess>(Contestant::kKind, store) : std::nullopt;
  }

  /// In the other process.
  static void writeTo(const Store& store, const std::function<bool()>& goesOn) {
    Contestant contestant(store, writtenPlace(store));
    for (Long value = 1; goesOn(); ++value) contestant.write(0, value);
  }

  benchmark::internal::Benchmark& add(const std::string& group,
                                      const std::function<void(benchmark::State&)>& function) {
    return *benchmark::RegisterBenchmark((group + '/' + name_).c_str(), function);
  }

  void addNumbers(std::string_view what, const Store& store, const Places& places, bool besideWriter) {
    auto& added = add(group(what, store, besideWriter), [&store, places, besideWriter](auto& state) {
      readNumbers(state, store, places, besideWriter);
    });
    if (besideWriter) measureBesideWriter(added);
  }

  void addFixed(const Store& store, bool besideWriter) {
    addNumbers("number", store, onePlace(store), besideWriter);
    auto& added = add(group("text", store, besideWriter), [&store, besideWriter](auto& state) {
      readText(state, store, onePlace(store), besideWriter);
    });
    if (besideWriter) measureBesideWriter(added);
  }

  std::string name_;
};

}  // namespace tessaly::bench
