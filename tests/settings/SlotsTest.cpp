// Programs that were built against an earlier version find the operations of CRegistry by their places.

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "tessaly/settings/CRegistry.h"
#include "tests/support/Slots.h"

namespace tessaly {

class CRegistryPeer {
 public:
  static std::vector<std::size_t> slots() {
    using tests::slotOf;
    using Text = std::u16string_view;
    return {slotOf<Long (CRegistry::*)() const>(&CRegistry::root),
            slotOf<void (CRegistry::*)(Long)>(&CRegistry::root),
            slotOf<void (CRegistry::*)(Text)>(&CRegistry::rootPath),
            slotOf<String (CRegistry::*)() const>(&CRegistry::rootPath),
            slotOf<void (CRegistry::*)(Text)>(&CRegistry::subPath),
            slotOf<String (CRegistry::*)()>(&CRegistry::subPath),
            slotOf(&CRegistry::LongKeyExists),
            slotOf(&CRegistry::StringKeyExists),
            slotOf(&CRegistry::SetString),
            slotOf(&CRegistry::GetString),
            slotOf(&CRegistry::SetDate),
            slotOf(&CRegistry::GetDate),
            slotOf(&CRegistry::SetLong),
            slotOf(&CRegistry::GetLong),
            slotOf(&CRegistry::SetBool),
            slotOf(&CRegistry::GetBool),
            slotOf(&CRegistry::SetColor),
            slotOf(&CRegistry::GetColor),
            slotOf(&CRegistry::GetSubkeysNumber),
            slotOf(&CRegistry::GetSubKeyName),
            slotOf(&CRegistry::DeletePath),
            slotOf(&CRegistry::GetRootHandle),
            slotOf(&CRegistry::GetKeyPath),
            slotOf(&CRegistry::WriteStringValue),
            slotOf(&CRegistry::WriteLongValue),
            slotOf(&CRegistry::ReadStringValue),
            slotOf(&CRegistry::ReadLongValue)};
  }
};

namespace {

TEST(RegistrySlots, StandInTheDocumentedOrder) {
  const std::vector<std::size_t> slots = CRegistryPeer::slots();
  std::vector<std::size_t> inOrder(slots.size());
  std::iota(inOrder.begin(), inOrder.end(), 0);
  EXPECT_EQ(slots, inOrder);
}

}  // namespace
}  // namespace tessaly
