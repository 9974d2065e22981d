// CRegistry over its hives, and the limit: to ask the file whether it has changed, which any reader must do
// that sees what other processes write, costs one system call at least.

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <functional>

#include "bench/Contestant.h"
#include "bench/Folder.h"
#include "bench/SettingsHives.h"
#include "tessaly/base/Text.h"
#include "tessaly/settings/CRegistry.h"

namespace tessaly::bench {
namespace {

class Tessaly {
 public:
  static constexpr const char* kKind = "Tessaly";

  Tessaly(const Store& store, const std::vector<Place>& places) {
    hiveOf(store);
    reads_.reserve(places.size());
    for (const Place& place : places) {
      Read& read = reads_.emplace_back();
      read.key.root(store.root);
      read.key.rootPath(fromUtf8(keyName(place.key, "\\")));
      read.number = fromUtf8(numberName(place.value));
      read.text = fromUtf8(textName(place.value));
    }
  }

  Long number(std::size_t place) const { return reads_[place].key.GetLong(reads_[place].number, kDefault); }
  String text(std::size_t place) const { return reads_[place].key.GetString(reads_[place].text, u""); }
  static std::string plain(const String& text) { return toUtf8(text); }
  void write(std::size_t place, Long value) { reads_[place].key.SetLong(reads_[place].number, value); }

 private:
  struct Read {
    CRegistry key;
    String number;
    String text;
  };
  std::vector<Read> reads_;
};
const Entry<Tessaly> tessaly("Tessaly", {});

/// Not to be closed: that would end the locks that SQLite has on the file for this process.
int opened(const Store& store) {
  static const int few = open(hiveOf(kFew).c_str(), O_RDONLY | O_CLOEXEC);
  static const int many = open(hiveOf(kMany).c_str(), O_RDONLY | O_CLOEXEC);
  return store.root == kFew.root ? few : many;
}

std::uint32_t counterOf(int file) {
  constexpr off_t kCounterPlace = 24;
  std::uint32_t counter = 0;
  if (pread(file, &counter, sizeof counter, kCounterPlace) != sizeof counter) fail("a hive has no counter");
  return counter;
}

void readCounter(benchmark::State& state, const Store& store, bool besideWriter) {
  const int file = opened(store);
  std::optional<OtherProcess> writer;
  if (besideWriter) writer.emplace(Tessaly::kKind, store);
  for (auto _ : state) benchmark::DoNotOptimize(counterOf(file));
}

/// Reads that follow each other without a pause share one look at the file, which serves for a millionth of a
/// second. These here come one by one, and each pays for its own. Both sides have the clock's cost in their
/// time.
void measureApart(benchmark::State& state, const std::function<void()>& read) {
  using Clock = std::chrono::steady_clock;
  for (auto _ : state) {
    const auto begin = Clock::now();
    read();
    const auto end = Clock::now();
    state.SetIterationTime(std::chrono::duration<double>(end - begin).count());
    while (Clock::now() - end < std::chrono::microseconds(2)) {
    }
  }
}

void readApart(benchmark::State& state, const Store& store) {
  const Tessaly contestant(store, onePlace(store));
  measureApart(state, [&] { benchmark::DoNotOptimize(contestant.number(0)); });
}

void readCounterApart(benchmark::State& state, const Store& store) {
  const int file = opened(store);
  measureApart(state, [file] { benchmark::DoNotOptimize(counterOf(file)); });
}

void addApart(const Store& store) {
  const std::string apart = group("number, reads apart", store);
  benchmark::RegisterBenchmark((apart + "/limit: pread of 4 bytes").c_str(), [&store](auto& state) {
    readCounterApart(state, store);
  })->UseManualTime();
  benchmark::RegisterBenchmark((apart + "/Tessaly").c_str(), [&store](auto& state) {
    readApart(state, store);
  })->UseManualTime();
}

void addLimit(const std::string& group, const Store& store, bool besideWriter) {
  auto* added = benchmark::RegisterBenchmark(
      (group + "/limit: pread of 4 bytes").c_str(),
      [&store, besideWriter](auto& state) { readCounter(state, store, besideWriter); });
  if (besideWriter) measureBesideWriter(*added);
}

bool addAll() {
  for (const Store* store : {&kFew, &kMany}) {
    addLimit(group("missing value", *store), *store, false);
    for (const char* what : {"number", "text"}) {
      addLimit(group(what, *store), *store, false);
      addLimit(group(what, *store, true), *store, true);
    }
    addApart(*store);
  }
  addLimit(group("one of 4,096 numbers", kMany), kMany, false);
  addLimit(group("one of 100,000 numbers", kMany), kMany, false);
  return true;
}
const bool added = addAll();

}  // namespace
}  // namespace tessaly::bench
