#include "bench/windows/Compare.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace tessaly::bench {
namespace {

using Clock = std::chrono::steady_clock;

double nanosecondsOf(const std::function<void()>& call, int calls) {
  const auto begin = Clock::now();
  for (int n = 0; n < calls; ++n) call();
  return std::chrono::duration<double, std::nano>(Clock::now() - begin).count() / calls;
}

}  // namespace

void compare(const std::string& group, std::vector<Contestant> contestants, int callsInRound) {
  for (int round = 0; round < kRounds; ++round) {
    for (Contestant& contestant : contestants)
      contestant.times.push_back(nanosecondsOf(contestant.call, callsInRound));
  }
  std::printf("\n%-52s   median ns    least ns  of medians\n", group.c_str());
  double limit = 0;
  for (Contestant& contestant : contestants) {
    std::sort(contestant.times.begin(), contestant.times.end());
    const double median = contestant.times[contestant.times.size() / 2];
    if (limit == 0) limit = median;
    std::printf("  %-50s%12.1f%12.1f%12.2f\n", contestant.name.c_str(), median, contestant.times.front(),
                median / limit);
  }
}

}  // namespace tessaly::bench
