#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tessaly::bench {

struct Contestant {
  std::string name;
  std::function<void()> call;
  std::vector<double> times;
};

/// How often `compare` calls each contestant, where nothing else is told.
inline constexpr int kRounds = 11;
inline constexpr int kCallsInRound = 2000;

/// Measures all by turns and prints a table. The first one is the limit.
void compare(const std::string& group, std::vector<Contestant> contestants, int callsInRound = kCallsInRound);

}  // namespace tessaly::bench
