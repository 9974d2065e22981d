#include "bench/Seating.h"

#include <vector>

#include "bench/Folder.h"

namespace tessaly::bench {
namespace {

/// Where partners are put; nowhere in particular while it is empty.
std::vector<int>& partnersPlace() {
  static std::vector<int> place;
  return place;
}

cpu_set_t allowed() {
  cpu_set_t set;
  if (sched_getaffinity(0, sizeof set, &set) != 0) fail("the processors can't be told");
  return set;
}

std::vector<int> processors() {
  const cpu_set_t set = allowed();
  std::vector<int> result;
  for (int n = 0; n < CPU_SETSIZE; ++n) {
    if (CPU_ISSET(n, &set)) result.push_back(n);
  }
  return result;
}

void sitOn(int processor) {
  cpu_set_t set;
  CPU_ZERO(&set);
  CPU_SET(processor, &set);
  if (sched_setaffinity(0, sizeof set, &set) != 0) fail("a processor can't be chosen");
}

}  // namespace

Seating::Seating(Seats seats) : before_(allowed()) {
  if (seats == Seats::Free) return;
  const std::vector<int> all = processors();
  partnersPlace() = {seats == Seats::OneProcessor ? all.front() : all.at(1)};
  sitOn(all.front());
}

Seating::~Seating() {
  partnersPlace().clear();
  sched_setaffinity(0, sizeof before_, &before_);
}

bool Seating::isPossible(Seats seats) { return seats != Seats::TwoProcessors || processors().size() > 1; }

void Seating::takePartnersPlace() {
  if (!partnersPlace().empty()) sitOn(partnersPlace().front());
}

}  // namespace tessaly::bench
