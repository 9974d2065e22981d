// The tables against the documented ones, and the control against the tables.

#include <gtest/gtest.h>

#include <ostream>
#include <tuple>

#include "tessaly/controls/transparentBitmapTables.h"
#include "tessaly/forms/headless/Form.h"
#include "tests/controls/transparentBitmapPeer.h"
#include "tests/support/Print.h"

namespace tessaly::tests {
namespace {

using Property = std::tuple<std::string, Long, ValueType, std::string, PropertyDefault>;
using Event = std::tuple<Long, std::string, std::vector<std::pair<std::string, ValueType>>>;

TEST(TransparentBitmapTables, HoldEachDocumentedPropertyOnce) {
  const std::vector<Property> documented{
      {"automaticClick", 1, ValueType::TruthValue, "automaticClick", false},
      {"Picture", 2, ValueType::PictureObject, "Picture", std::monostate()},
      {"disabledPicture", 3, ValueType::PictureObject, "disabledPicture", std::monostate()},
      {"maskColor", 4, ValueType::Colour, "maskColor", Long{0xFF00FF}},
      {"automaticClickTiming", 5, ValueType::Integer32, "automaticClickTiming", Long{500}},
      {"backcolor", 6, ValueType::Colour, "BackColor", Long{0}},
      {"withBorder", 9, ValueType::Integer32, "WithBorder", Long{0}},
      {"AutoResize", 10, ValueType::TruthValue, "AutoResize", false},
      {"enabled", 11, ValueType::TruthValue, "enabled", true},
      {"automaticClickFirstTiming", 12, ValueType::Integer32, "automaticClickFirstTiming", Long{500}},
      {"stretch", 13, ValueType::TruthValue, "stretch", false},
      {"resultPicture", 14, ValueType::PictureObject, "", std::monostate()},
  };
  std::vector<Property> held;
  held.reserve(kTransparentBitmapProperties.size());
  for (const PropertyRow& row : kTransparentBitmapProperties) {
    held.emplace_back(shown(row.name), row.dispatchNumber, row.type, shown(row.bagKey), row.defaultValue);
  }
  EXPECT_TRUE(held == documented);
}

TEST(TransparentBitmapTables, SayWhatADesignerShowsOfTheBackground) {
  for (const PropertyRow& row : kTransparentBitmapProperties) {
    EXPECT_EQ(shown(row.description),
              row.name == u"backcolor"
                  ? "Returns/sets the background color used to display text and graphics in an object."
                  : "")
        << shown(row.name);
    EXPECT_EQ(shown(row.category), "") << shown(row.name);
  }
}

TEST(TransparentBitmapTables, TellThePlacesOfThePropertiesOperations) {
  const std::vector<std::size_t> slots = transparentBitmapPeer::slots();
  std::vector<int> places;
  for (const PropertyRow& row : kTransparentBitmapProperties) {
    places.push_back(row.readSlot);
    places.push_back(row.assignSlot);
  }
  EXPECT_EQ(places, (std::vector<int>{0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11,
                                      14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25}));
  EXPECT_GT(slots.size(), 26U);
}

TEST(TransparentBitmapTables, HoldEachDocumentedEventInItsOrder) {
  const std::vector<std::pair<std::string, ValueType>> mouse{{"Button", ValueType::Integer16},
                                                             {"Shift", ValueType::Integer16},
                                                             {"x", ValueType::Float32},
                                                             {"y", ValueType::Float32}};
  const std::vector<Event> documented{{1, "OnButtonClick", {}},          {2, "OnButtonSelected", {}},
                                      {3, "OnButtonSelectedTiming", {}}, {4, "MouseMove", mouse},
                                      {5, "MouseDown", mouse},           {6, "MouseUp", mouse}};
  std::vector<Event> held;
  held.reserve(kTransparentBitmapEvents.size());
  for (const EventRow& row : kTransparentBitmapEvents) {
    std::vector<std::pair<std::string, ValueType>> arguments;
    arguments.reserve(row.arguments.size());
    for (const EventArgument& argument : row.arguments) {
      arguments.emplace_back(shown(argument.name), argument.type);
    }
    held.emplace_back(row.number, shown(row.name), arguments);
  }
  EXPECT_EQ(held, documented);
}

TEST(TransparentBitmapTables, TellTheSizeOfAControlForWhichNoneIsDrawn) {
  EXPECT_EQ(kTransparentBitmapWidth / Scale::kTwipsPerPixel, 236);
  EXPECT_EQ(kTransparentBitmapHeight / Scale::kTwipsPerPixel, 187);
}

TEST(PropertyTable, GivesADefaultAsABagHasIt) {
  const auto defaultFor = [](PropertyDefault value) {
    return defaultOf({u"name", 0, 1, 1, ValueType::Text, u"key", value, u"", u""});
  };
  EXPECT_EQ(defaultFor({}), PropertyValue(PictureReference()));
  EXPECT_EQ(defaultFor(true), PropertyValue(Variant(True)));
  EXPECT_EQ(defaultFor(Long{7}), PropertyValue(Variant(Long{7})));
  EXPECT_EQ(defaultFor(u"text"), PropertyValue(Variant(u"text")));
}

}  // namespace
}  // namespace tessaly::tests
