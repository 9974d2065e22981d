// The form without a display: what a test of a host's moves by hand, and who hears of it.

#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "tessaly/forms/headless/Form.h"
#include "tests/forms/ControlOfTests.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

using headless::Form;
using Events = std::vector<std::string>;

class HeadlessFormTest : public testing::Test {
 protected:
  ~HeadlessFormTest() override {
    ControlOfTests::onInit() = {};
    form_.reset();
    EXPECT_EQ(ControlOfTests::count(), 0);
  }

  std::unique_ptr<Form> form_ = std::make_unique<Form>();
};

TEST_F(HeadlessFormTest, ANewControlIsMadeThenInitialisedThenResizedOnce) {
  auto& control = form_->add<ControlOfTests>({10, 20, 30, 40});
  EXPECT_EQ(control.events, (Events{"InitProperties", "Resize"}));
  EXPECT_EQ(form_->placeOf(control).size(), (PixelSize{30, 40}));
}

TEST_F(HeadlessFormTest, AStoredControlReadsItsPropertiesInstead) {
  PropertyBag bag;
  bag.WriteProperty(u"Size", Variant(Long{7}), Variant(Long{0}));
  auto& control = form_->add<ControlOfTests>({10, 20, 30, 40}, bag);
  EXPECT_EQ(control.events, (Events{"ReadProperties", "Resize"}));
  EXPECT_EQ(control.size, 7);
  EXPECT_EQ(longOf(form_->placeOf(control).save().ReadProperty(u"size", Variant(Long{0}))), 7);
}

TEST_F(HeadlessFormTest, WhatABeginningRaisesComesOutOfTheCallAndTheControlIsGone) {
  ControlOfTests::onInit() = [](ControlOfTests&) { throw RuntimeError(RuntimeError::TypeMismatch); };
  EXPECT_EQ(errorOf([&] { form_->add<ControlOfTests>({0, 0, 10, 10}); }), RuntimeError::TypeMismatch);
  EXPECT_EQ(ControlOfTests::count(), 0);
  EXPECT_TRUE(form_->errors().empty());
}

// The call gave a control that was no more.
TEST_F(HeadlessFormTest, AControlThatIsRemovedInItsBeginningIsError9) {
  ControlOfTests::onInit() = [this](ControlOfTests& control) { form_->remove(control); };
  EXPECT_EQ(errorOf([&] { form_->add<ControlOfTests>({0, 0, 10, 10}); }), RuntimeError::SubscriptOutOfRange);
  EXPECT_EQ(ControlOfTests::count(), 0);
  ControlOfTests::onInit() = [this](ControlOfTests&) { form_.reset(); };
  EXPECT_EQ(errorOf([&] { form_->add<ControlOfTests>({0, 0, 10, 10}); }), RuntimeError::SubscriptOutOfRange);
}

TEST_F(HeadlessFormTest, NoControlIsSmallerThanNothingOrLargerThanAnyMayBe) {
  for (const headless::Bounds& bounds :
       {headless::Bounds{0, 0, -1, 5}, {0, 0, 5, -1}, {0, 0, 32768, 5}, {0, 0, 5, 32768}}) {
    EXPECT_EQ(errorOf([&] { form_->add<ControlOfTests>(bounds); }), RuntimeError::InvalidPropertyValue);
  }
  auto& control = form_->add<ControlOfTests>({0, 0, 32767, 0});
  EXPECT_EQ(errorOf([&] { form_->placeOf(control).drag({-1, 0}); }), RuntimeError::InvalidPropertyValue);
  EXPECT_EQ(form_->placeOf(control).size(), (PixelSize{32767, 0}));
}

TEST_F(HeadlessFormTest, AControlOfAnotherFormHasNoPlaceHere) {
  Form other;
  const auto& stranger = other.add<ControlOfTests>({0, 0, 10, 10});
  EXPECT_EQ(errorOf([&] { form_->placeOf(stranger); }), RuntimeError::SubscriptOutOfRange);
  EXPECT_EQ(errorOf([&] { form_->remove(stranger); }), RuntimeError::SubscriptOutOfRange);
}

TEST_F(HeadlessFormTest, ThePointerReachesTheTopmostVisibleControlUnderIt) {
  auto& below = form_->add<ControlOfTests>({10, 10, 20, 20});
  auto& above = form_->add<ControlOfTests>({20, 20, 20, 20});
  below.events.clear();
  above.events.clear();
  form_->movePointer({25, 26});
  form_->placeOf(above).show(false);
  form_->movePointer({29, 29}, 2);
  form_->movePointer({30, 30});
  form_->movePointer({9, 10});
  EXPECT_EQ(above.events, (Events{"MouseMove 0 0 5,6"}));
  EXPECT_EQ(below.events, (Events{"MouseMove 0 2 19,19"}));
}

TEST_F(HeadlessFormTest, AMoveTellsTheButtonsThatAreHeld) {
  auto& control = form_->add<ControlOfTests>({0, 0, 10, 10});
  form_->movePointer({1, 2});
  control.events.clear();
  form_->press(1);
  form_->press(2, 4);
  form_->movePointer({3, 4});
  form_->release(1);
  form_->movePointer({5, 6});
  EXPECT_EQ(control.events, (Events{"MouseDown 1 0 1,2", "MouseDown 2 4 1,2", "MouseMove 3 0 3,4",
                                    "MouseUp 1 0 3,4", "MouseMove 2 0 5,6"}));
}

TEST_F(HeadlessFormTest, ThePointerStaysOnTheScreenWhereTheFormMoves) {
  auto& control = form_->add<ControlOfTests>({10, 20, 30, 40});
  Container& container = control.surface().container();
  form_->movePointer({15, 30});
  EXPECT_EQ(container.ScreenToClient(container.GetCursorPos()), (PixelPoint{5, 10}));
  EXPECT_EQ(container.GetCursorPos(), (PixelPoint{115, 130}));
  form_->moveTo({107, 93});
  EXPECT_EQ(container.GetCursorPos(), (PixelPoint{115, 130}));
  EXPECT_EQ(container.ScreenToClient(container.GetCursorPos()), (PixelPoint{-2, 17}));
}

TEST_F(HeadlessFormTest, APointerAsFarAwayAsNumbersGoIsOutside) {
  auto& control = form_->add<ControlOfTests>({10, 10, 30, 40});
  control.events.clear();
  constexpr Long kFarthest = std::numeric_limits<Long>::max();
  form_->movePointer({kFarthest, kFarthest});
  form_->moveTo({-kFarthest, -kFarthest});
  form_->movePointer({-kFarthest, -kFarthest});
  EXPECT_TRUE(control.events.empty());
}

TEST_F(HeadlessFormTest, ADragRaisesResizeWhereTheSizeChanges) {
  auto& control = form_->add<ControlOfTests>({0, 0, 10, 10});
  control.events.clear();
  form_->placeOf(control).drag({10, 10});
  EXPECT_TRUE(control.events.empty());
  form_->placeOf(control).drag({11, 10});
  EXPECT_EQ(control.events, (Events{"Resize"}));
  EXPECT_EQ(control.surface().Width(), 165);
}

TEST_F(HeadlessFormTest, WhatItsOwnEventsRaiseStandsInItsErrors) {
  auto& control = form_->add<ControlOfTests>({0, 0, 10, 10});
  control.on["Resize"] = [] { throw RuntimeError(RuntimeError::Overflow); };
  control.on["MouseMove"] = [] { throw std::bad_alloc(); };
  control.on["Paint"] = [] { throw RuntimeError(RuntimeError::TypeMismatch); };
  form_->placeOf(control).drag({5, 5});
  form_->movePointer({1, 1});
  form_->placeOf(control).picture();
  ASSERT_EQ(form_->errors().size(), 3U);
  EXPECT_EQ(form_->errors()[0].number(), RuntimeError::Overflow);
  EXPECT_EQ(form_->errors()[1].number(), RuntimeError::OutOfMemory);
  EXPECT_EQ(form_->errors()[2].number(), RuntimeError::TypeMismatch);
}

TEST_F(HeadlessFormTest, WhatACallRaisesComesOutOfTheCall) {
  auto& control = form_->add<ControlOfTests>({0, 0, 10, 10});
  control.on["Resize"] = [] { throw RuntimeError(RuntimeError::Overflow); };
  control.on["WriteProperties"] = [] { throw RuntimeError(RuntimeError::TypeMismatch); };
  EXPECT_EQ(errorOf([&] { control.surface().Width(30); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([&] { form_->placeOf(control).save(); }), RuntimeError::TypeMismatch);
  EXPECT_TRUE(form_->errors().empty());
}

TEST_F(HeadlessFormTest, WhatTheControlTellsItStandsInItsPlace) {
  auto& control = form_->add<ControlOfTests>({0, 0, 10, 10});
  auto& place = form_->placeOf(control);
  control.surface().PropertyChanged(u"Size");
  control.surface().Refresh();
  control.surface().setMouseIcon({nullptr, {13, 5}});
  control.surface().MousePointer(99);
  EXPECT_EQ(place.changedProperties(), std::vector<String>{u"Size"});
  EXPECT_EQ(place.repaints(), 1);
  EXPECT_EQ(place.cursor(), 99);
  EXPECT_EQ(place.mouseIcon().hotSpot, (PixelPoint{13, 5}));
}

TEST_F(HeadlessFormTest, ItRunsOrIsDesignedAndHasAScreen) {
  auto& control = form_->add<ControlOfTests>({0, 0, 10, 10});
  Container& container = control.surface().container();
  EXPECT_TRUE(container.UserMode());
  form_->setUserMode(false);
  EXPECT_FALSE(container.UserMode());
  container.screen().MousePointer(11);
  EXPECT_EQ(form_->screen().MousePointer(), 11);
  Screen other;
  form_->setScreen(other);
  EXPECT_EQ(container.screen().MousePointer(), 0);
  EXPECT_EQ(other.TwipsPerPixelX(), 15);
}

TEST_F(HeadlessFormTest, SystemColoursAreThoseOfAPlainWindows) {
  auto& control = form_->add<ControlOfTests>({0, 0, 10, 10});
  Container& container = control.surface().container();
  EXPECT_EQ(container.systemColour(15), 0xF0F0F0);
  EXPECT_EQ(container.systemColour(26), 0xCC6600);
  EXPECT_EQ(container.systemColour(30), 0xF0F0F0);
  EXPECT_EQ(container.systemColour(31), 0);
  EXPECT_EQ(container.systemColour(-1), 0);
}

TEST_F(HeadlessFormTest, EachControlHasAWindowNumberOfItsOwn) {
  auto& one = form_->add<ControlOfTests>({0, 0, 10, 10});
  auto& other = form_->add<ControlOfTests>({0, 0, 10, 10});
  EXPECT_NE(one.surface().hWnd(), 0);
  EXPECT_NE(one.surface().hWnd(), other.surface().hWnd());
}

}  // namespace
}  // namespace tessaly::tests
