// The turns of all who write durably, and their limit: four bytes into a file, and the wait for the disk.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <memory>
#include <random>
#include <vector>

#include "bench/Contestant.h"
#include "bench/Folder.h"
#include "bench/WriteTurns.h"

namespace tessaly::bench {
namespace {

constexpr int kTurns = 30;

std::map<std::string, OpenDurableWriter>& openersFor(const Store& store) {
  static std::map<std::string_view, std::map<std::string, OpenDurableWriter>> all;
  return all[store.name];
}

struct Turn {
  std::string name;
  DurableWriter writer;
  std::vector<double> times;
};

std::vector<Turn> turnsFor(const Store& store) {
  std::vector<Turn> turns;
  for (const auto& [name, open] : openersFor(store)) turns.push_back({name, open(store), {}});
  return turns;
}

double nanosecondsOf(const DurableWriter& writer, Long value) {
  using Clock = std::chrono::steady_clock;
  const auto begin = Clock::now();
  writer.write(value);
  return std::chrono::duration<double, std::nano>(Clock::now() - begin).count();
}

double median(std::vector<double> times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

/// The summary takes each counter as a benchmark of its own.
void takeTurns(benchmark::State& state, const Store& store) {
  static std::mt19937 order(1);
  std::vector<Turn> turns = turnsFor(store);
  Long value = 0;
  for (auto _ : state) {
    std::shuffle(turns.begin(), turns.end(), order);
    ++value;
    for (Turn& turn : turns) turn.times.push_back(nanosecondsOf(turn.writer, value));
  }
  for (const Turn& turn : turns) {
    if (turn.writer.read() != value) state.SkipWithError("a write was lost");
    state.counters[turn.name] = median(turn.times);
  }
}

class File {
 public:
  explicit File(const std::filesystem::path& path)
      : number_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    if (number_ < 0) fail("can't open " + path.string());
  }
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() { close(number_); }

  void write(Long value) const {
    if (pwrite(number_, &value, sizeof value, 0) != sizeof value || fdatasync(number_) != 0)
      fail("nothing can be written");
  }
  Long read() const {
    Long value = 0;
    if (pread(number_, &value, sizeof value, 0) != sizeof value) fail("nothing was written");
    return value;
  }

 private:
  int number_;
};

DurableWriter openFile(const Store& /*store*/) {
  const auto file = std::make_shared<File>(newFolder("disk") / "file");
  return {[file](Long value) { file->write(value); }, [file] { return file->read(); }};
}

bool addAll() {
  for (const Store* store : {&kFew, &kMany}) {
    addDurableWriter("limit: pwrite and fdatasync", *store, &openFile);
    const std::string name = group("durable write", *store) + "/in turns";
    benchmark::RegisterBenchmark(name.c_str(), [store](auto& state) {
      takeTurns(state, *store);
    })->Iterations(kTurns);
  }
  return true;
}
const bool added = addAll();

}  // namespace

void addDurableWriter(const std::string& name, const Store& store, const OpenDurableWriter& open) {
  openersFor(store)[name] = open;
}

}  // namespace tessaly::bench
