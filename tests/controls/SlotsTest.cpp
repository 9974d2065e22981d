// Programs that were built against an earlier version find the operations of transparentBitmap by their
// places.

#include <gtest/gtest.h>

#include <numeric>

#include "tests/controls/transparentBitmapPeer.h"

namespace tessaly {
namespace {

TEST(TransparentBitmapSlots, StandInTheDocumentedOrder) {
  const std::vector<std::size_t> slots = transparentBitmapPeer::slots();
  std::vector<std::size_t> inOrder(slots.size());
  std::iota(inOrder.begin(), inOrder.end(), 0);
  EXPECT_EQ(slots, inOrder);
}

}  // namespace
}  // namespace tessaly
