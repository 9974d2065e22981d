// Programs that were built against an earlier version find the operations of CHelp by their places.

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "tessaly/dialogs/CHelp.h"
#include "tests/support/Slots.h"

namespace tessaly::tests {
namespace {

TEST(HelpSlots, StandInTheDocumentedOrder) {
  const std::vector<std::size_t> slots = {
      slotOf(&CHelp::ShowTopic),
      slotOf(&CHelp::ShowTopicByMap),
      slotOf(&CHelp::HelpKey),
      slotOf(&CHelp::DisplayIndex),
      slotOf(&CHelp::CloseHelp),
      slotOf<void (CHelp::*)(std::u16string_view)>(&CHelp::currentHelpPage),
      slotOf<String (CHelp::*)() const>(&CHelp::currentHelpPage)};
  std::vector<std::size_t> inOrder(slots.size());
  std::iota(inOrder.begin(), inOrder.end(), 0);
  EXPECT_EQ(slots, inOrder);
}

}  // namespace
}  // namespace tessaly::tests
