// Programs that were built against an earlier version find the operations of ZPLoggerClient by their places.

#include <gtest/gtest.h>

#include <numeric>

#include "tests/trace/ZPLoggerClientPeer.h"

namespace tessaly {
namespace {

TEST(TraceSlots, StandInTheDocumentedOrder) {
  const std::vector<std::size_t> slots = ZPLoggerClientPeer::slots();
  std::vector<std::size_t> inOrder(slots.size());
  std::iota(inOrder.begin(), inOrder.end(), 0);
  EXPECT_EQ(slots, inOrder);
}

}  // namespace
}  // namespace tessaly
