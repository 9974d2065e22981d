#include "bench/TraceGoals.h"

namespace tessaly::bench {
namespace {

constexpr double kOverPackets = 1.2;
constexpr double kOverFutex = 1.6;
constexpr double kOffNanoseconds = 2;

}  // namespace

std::vector<Goal> traceGoals() {
  std::vector<Goal> goals;
  goals.push_back({"a line to nowhere: off, ns", "a line to nowhere/Tessaly, off", {}, kOffNanoseconds});
  for (const char* seats : {"processes free", "one processor", "two processors"}) {
    const std::string group = std::string("a line, ") + seats;
    goals.push_back({group + ": over SOCK_SEQPACKET",
                     group + "/Tessaly",
                     {group + "/SOCK_SEQPACKET, there and back"},
                     kOverPackets});
    goals.push_back(
        {group + ": over futex", group + "/Tessaly", {group + "/limit: futex, there and back"}, kOverFutex});
  }
  return goals;
}

}  // namespace tessaly::bench
