// The turns of all who hand on a line: both processes where the system puts them, both on one processor, and
// each on its own.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <random>
#include <vector>

#include "bench/RoundTrips.h"
#include "bench/Seating.h"

namespace tessaly::bench {
namespace {

constexpr int kRounds = 200;
constexpr std::size_t kCallsInTurn = 10;

std::map<std::string, std::function<LineSender()>>& openers() {
  static std::map<std::string, std::function<LineSender()>> all;
  return all;
}

struct Turn {
  std::string name;
  LineSender sender;
  std::size_t sent = 0;
  std::vector<double> times;
};

std::vector<Turn> allTurns() {
  std::vector<Turn> turns;
  for (const auto& [name, open] : openers()) {
    if (LineSender sender = open(); sender.send) turns.push_back({name, std::move(sender), 0, {}});
  }
  return turns;
}

void take(Turn& turn) {
  using Clock = std::chrono::steady_clock;
  const auto begin = Clock::now();
  for (std::size_t n = 0; n < kCallsInTurn; ++n) turn.sender.send();
  const std::chrono::duration<double, std::nano> time = Clock::now() - begin;
  turn.sent += kCallsInTurn;
  turn.times.push_back(time.count() / kCallsInTurn);
}

double median(std::vector<double> times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

/// The summary takes each counter as a benchmark of its own.
void takeTurns(benchmark::State& state, Seats seats) {
  static std::mt19937 order(1);
  const Seating seating(seats);
  std::vector<Turn> turns = allTurns();
  for (auto _ : state) {
    std::shuffle(turns.begin(), turns.end(), order);
    for (Turn& turn : turns) take(turn);
  }
  for (const Turn& turn : turns) {
    if (turn.sender.arrived && turn.sender.arrived() != turn.sent) state.SkipWithError("a line was lost");
    state.counters[turn.name] = median(turn.times);
  }
}

void add(const std::string& group, Seats seats) {
  if (!Seating::isPossible(seats)) return;
  benchmark::RegisterBenchmark((group + "/in turns").c_str(), [seats](auto& state) {
    takeTurns(state, seats);
  })->Iterations(kRounds);
}

bool addAll() {
  add("a line, processes free", Seats::Free);
  add("a line, one processor", Seats::OneProcessor);
  add("a line, two processors", Seats::TwoProcessors);
  return true;
}
const bool added = addAll();

}  // namespace

void addLineSender(const std::string& name, const std::function<LineSender()>& open) {
  openers()[name] = open;
}

}  // namespace tessaly::bench
