// The link's tables against the documented ones, and its operations' places.

#include <gtest/gtest.h>

#include <numeric>
#include <tuple>

#include "tessaly/controls/URLLinkTables.h"
#include "tests/controls/URLLinkPeer.h"
#include "tests/support/Print.h"

namespace tessaly::tests {
namespace {

using LinkProperty = std::tuple<std::string, int, int, Long, ValueType, std::string, PropertyDefault>;

TEST(LinkTables, HoldEachDocumentedPropertyOnce) {
  const std::vector<LinkProperty> documented{
      {"text", 0, 1, -517, ValueType::Text, "Text", u"Gleamline Home Page"},
      {"URL", 2, 3, 2, ValueType::Text, "URL", u"https://www.gleamline.example/"},
      {"ShowToolTip", 4, 5, 3, ValueType::TruthValue, "ShowToolTip", false},
      {"alignment", 7, 6, 4, ValueType::Integer32, "Alignment", Long{1}},
  };
  std::vector<LinkProperty> held;
  for (const PropertyRow& row : kURLLinkProperties) {
    held.emplace_back(shown(row.name), row.readSlot, row.assignSlot, row.dispatchNumber, row.type,
                      shown(row.bagKey), row.defaultValue);
  }
  EXPECT_TRUE(held == documented);
}

TEST(LinkTables, SayWhatADesignerShows) {
  std::vector<std::pair<std::string, std::string>> texts;
  for (const PropertyRow& row : kURLLinkProperties)
    texts.emplace_back(shown(row.description), shown(row.category));
  const std::vector<std::pair<std::string, std::string>> documented{
      {"Text displayed in control", "Text"},
      {"URL loaded when mouse is clicked over text. May also be a data file that has an extension registered "
       "by an application on your system.",
       "Behavior"},
      {"Determines if the URL is displayed in a tooltip when the mouse is parked over the text", "Behavior"},
      {"", ""}};
  EXPECT_EQ(texts, documented);
}

TEST(LinkTables, HoldTheEvent) {
  ASSERT_EQ(kURLLinkEvents.size(), 1U);
  const EventRow& row = kURLLinkEvents.front();
  EXPECT_EQ(row.number, 1);
  EXPECT_EQ(shown(row.name), "GoToURL");
  ASSERT_EQ(row.arguments.size(), 2U);
  EXPECT_EQ(shown(row.arguments[0].name), "URL");
  EXPECT_EQ(row.arguments[0].type, ValueType::Text);
  EXPECT_EQ(shown(row.arguments[1].name), "Cancel");
  EXPECT_EQ(row.arguments[1].type, ValueType::TruthValue);
}

TEST(LinkTables, TellTheSizeOfALinkForWhichNoneIsDrawn) {
  EXPECT_EQ(kURLLinkWidth / 15, 128);
  EXPECT_EQ(kURLLinkHeight / 15, 73);
}

TEST(LinkSlots, StandInTheDocumentedOrder) {
  const std::vector<std::size_t> slots = URLLinkPeer::slots();
  std::vector<std::size_t> inOrder(slots.size());
  std::iota(inOrder.begin(), inOrder.end(), 0);
  EXPECT_EQ(slots, inOrder);
}

}  // namespace
}  // namespace tessaly::tests
