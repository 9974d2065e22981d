// Programs that were built against an earlier version find the operations of CResources by their places.

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "tessaly/localisation/CResources.h"
#include "tests/support/CResourcesPeer.h"
#include "tests/support/Slots.h"

namespace tessaly {
namespace {

using tests::slotOf;

TEST(ResourcesSlots, StandInTheDocumentedOrder) {
  std::vector<std::size_t> slots = {slotOf(&CResources::res),
                                    slotOf(&CResources::resWithArg),
                                    slotOf(&CResources::numberOfLangs),
                                    slotOf(&CResources::resLang),
                                    slotOf(&CResources::resLangID),
                                    slotOf(&CResources::SetLangToRegistries),
                                    slotOf(&CResources::LoadXMLFile),
                                    slotOf(&CResources::SetResourcesPathFromRegistry),
                                    slotOf(&CResources::resourcesPath),
                                    slotOf(&CResources::AutomaticTranslation),
                                    slotOf(&CResources::SetLangOrCountry),
                                    slotOf(&CResources::applicationGUID),
                                    slotOf(&CResources::SetDefaultLang),
                                    slotOf(&CResources::SetLangFromRegistries),
                                    slotOf<void (CResources::*)(Long)>(&CResources::lang),
                                    slotOf(&CResources::langName),
                                    slotOf<Long (CResources::*)() const>(&CResources::lang),
                                    slotOf(&CResources::reportFontName),
                                    slotOf(&CResources::gridFontName),
                                    slotOf(&CResources::mailFontName),
                                    slotOf(&CResources::gridFontSize)};
  const std::vector<std::size_t> behind = CResourcesPeer::privateSlots();
  slots.insert(slots.end(), behind.begin(), behind.end());
  std::vector<std::size_t> inOrder(slots.size());
  std::iota(inOrder.begin(), inOrder.end(), 0);
  EXPECT_EQ(slots, inOrder);
}

}  // namespace
}  // namespace tessaly
