// What a control begins with, and how a bag keeps it.

#include <gtest/gtest.h>

#include "tests/controls/Figures.h"
#include "tests/controls/RecordingBag.h"
#include "tests/controls/RecordingStage.h"
#include "tests/support/Errors.h"
#include "tests/support/Print.h"

namespace tessaly::tests {
namespace {

class PersistenceTest : public testing::Test {
 protected:
  /// What reading a bag gives, for a control that was new.
  Calls restore(const PropertyBag& bag) {
    return stage_.callsOf([&] { stage_.place().userControl().restore(bag); });
  }
  Long errorOfRestore(std::u16string_view name, const PropertyValue& value) {
    bag_.PropertyBag::WriteProperty(name, value, Variant(u"no such default"));
    return errorOf([&] { stage_.place().userControl().restore(bag_); });
  }

  /// Of all but the pictures.
  void expectDefaults() const {
    EXPECT_EQ(control_.maskColor(), 0xFF00FF);
    EXPECT_EQ(control_.backcolor(), 0);
    EXPECT_EQ(control_.withBorder(), 0);
    EXPECT_EQ(control_.AutoResize(), False);
    EXPECT_EQ(control_.enabled(), True);
    EXPECT_EQ(control_.automaticClick(), False);
    EXPECT_EQ(control_.automaticClickTiming(), 500);
    EXPECT_EQ(control_.automaticClickFirstTiming(), 500);
    EXPECT_EQ(control_.stretch(), False);
  }

  RecordingStage stage_;
  transparentBitmap& control_ = stage_.add();
  RecordingBag bag_{stage_.log()};
};

TEST_F(PersistenceTest, ANewControlHasTheDefaults) {
  ASSERT_NE(control_.Picture(), nullptr);
  EXPECT_TRUE(control_.Picture()->isEmpty());
  ASSERT_NE(control_.disabledPicture(), nullptr);
  EXPECT_TRUE(control_.disabledPicture()->isEmpty());
  expectDefaults();
}

TEST_F(PersistenceTest, ANewControlIsEnabledAndNeitherHoveredNorPressedAndRestsASecond) {
  EXPECT_EQ(control_.enabled(), True);
  EXPECT_EQ(transparentBitmapPeer::isHovered(control_), False);
  EXPECT_EQ(transparentBitmapPeer::isPressed(control_), False);
  EXPECT_EQ(transparentBitmapPeer::selectedRaised(control_), False);
  EXPECT_EQ(transparentBitmapPeer::selectedDelay(control_), 1000);
  EXPECT_EQ(transparentBitmapPeer::bitmapCount(control_), 0U);
}

TEST_F(PersistenceTest, InitPropertiesSetsTwoBackgroundsAndNeitherDrawsNorTells) {
  control_.backcolor(5);
  control_.withBorder(3);
  control_.enabled(False);
  EXPECT_EQ(stage_.callsOf([&] { transparentBitmapPeer::InitProperties(control_); }),
            (Calls{"UserControl.BackColor = &H0", "result.BackColor = &H0"}));
  EXPECT_EQ(control_.withBorder(), 0);
  EXPECT_EQ(control_.enabled(), True);
}

TEST_F(PersistenceTest, InitPropertiesThatFailsLeavesTheRestAsItWas) {
  control_.maskColor(1);
  control_.backcolor(5);
  control_.withBorder(3);
  stage_.log().fail("UserControl.BackColor = &H0", RuntimeError::OutOfMemory);
  EXPECT_EQ(errorOf([&] { transparentBitmapPeer::InitProperties(control_); }), RuntimeError::OutOfMemory);
  EXPECT_EQ(control_.maskColor(), 0xFF00FF);
  EXPECT_EQ(control_.backcolor(), 0);
  EXPECT_EQ(control_.withBorder(), 3);
}

TEST_F(PersistenceTest, ReadPropertiesReadsInOrderAndEndsWithTheResizeHandler) {
  const Calls drawn{"UserControl.ScaleWidth", "UserControl.ScaleHeight", "UserControl.Cls"};
  EXPECT_EQ(restore(bag_),
            joined({{"read Picture or none", "read disabledPicture or none", "read maskColor or 16711935",
                     "read BackColor or 0", "read WithBorder or 0", "UserControl.BackColor = &H0",
                     "result.BackColor = &H0", "read AutoResize or False", "read enabled or True",
                     "read automaticClick or False", "read automaticClickTiming or 500",
                     "read automaticClickFirstTiming or 500", "read stretch or False"},
                    drawn,
                    // The container's own first Resize.
                    drawn}));
}

TEST_F(PersistenceTest, AnEmptyBagGivesTheDefaultsButNoPictureAtAll) {
  control_.enabled(False);
  control_.withBorder(7);
  restore(bag_);
  EXPECT_EQ(control_.Picture(), nullptr);
  EXPECT_EQ(control_.disabledPicture(), nullptr);
  expectDefaults();
}

TEST_F(PersistenceTest, WritePropertiesWritesInOrder) {
  control_.disabledPicture(nullptr);
  control_.backcolor(-5);
  control_.enabled(False);
  EXPECT_EQ(stage_.callsOf([&] { stage_.place().userControl().save(bag_); }),
            (Calls{"write Picture picture or none", "write maskColor 16711935 or 16711935",
                   "write BackColor -5 or 0", "write WithBorder 0 or 0", "write AutoResize False or False",
                   "write enabled False or True", "write disabledPicture none or none",
                   "write automaticClick False or False", "write automaticClickTiming 500 or 500",
                   "write automaticClickFirstTiming 500 or 500", "write stretch False or False"}));
}

TEST_F(PersistenceTest, WhatWasWrittenIsReadAgain) {
  control_.Picture(slope({4, 3}, 1));
  control_.disabledPicture(slope({3, 4}, 1));
  control_.maskColor(1);
  control_.backcolor(2);
  control_.withBorder(3);
  control_.AutoResize(True);
  control_.enabled(False);
  control_.automaticClick(True);
  control_.automaticClickTiming(4);
  control_.automaticClickFirstTiming(5);
  control_.stretch(True);
  control_.AddBitmap(slope({1, 1}, 1), 0, 0);
  auto& other = stage_.form().add<transparentBitmap>({0, 0, 9, 9}, stage_.place().save());
  EXPECT_EQ(other.Picture(), control_.Picture());
  EXPECT_EQ(other.disabledPicture(), control_.disabledPicture());
  EXPECT_EQ(stage_.form().placeOf(other).size(), (PixelSize{3 + 2 * 3, 4 + 2 * 3}));
  EXPECT_EQ(other.maskColor(), 1);
  EXPECT_EQ(other.backcolor(), 2);
  EXPECT_EQ(other.withBorder(), 3);
  EXPECT_EQ(other.AutoResize(), True);
  EXPECT_EQ(other.enabled(), False);
  EXPECT_EQ(other.automaticClick(), True);
  EXPECT_EQ(other.automaticClickTiming(), 4);
  EXPECT_EQ(other.automaticClickFirstTiming(), 5);
  EXPECT_EQ(other.stretch(), True);
  EXPECT_EQ(transparentBitmapPeer::bitmapCount(other), 0U) << "overlays are not kept";
  EXPECT_EQ(transparentBitmapPeer::selectedDelay(other), 1000);
  EXPECT_EQ(stage_.form().placeOf(other).size(), (PixelSize{9, 10})) << "of the picture that shows";
}

TEST_F(PersistenceTest, KeysAreFoundInAnyCase) {
  bag_.PropertyBag::WriteProperty(u"WITHBORDER", Variant(Long{4}), Variant(Long{0}));
  bag_.PropertyBag::WriteProperty(u"backcolor", Variant(Long{5}), Variant(Long{0}));
  restore(bag_);
  EXPECT_EQ(control_.withBorder(), 4);
  EXPECT_EQ(control_.backcolor(), 5);
}

TEST_F(PersistenceTest, ReadingEnabledEndsNoPressAndTellsNobody) {
  transparentBitmapPeer::setPressed(control_, True);
  const auto before = stage_.place().changedProperties();
  EXPECT_EQ(errorOfRestore(u"enabled", Variant(False)), 0);
  EXPECT_EQ(control_.enabled(), False);
  EXPECT_EQ(transparentBitmapPeer::isPressed(control_), True);
  EXPECT_EQ(stage_.place().changedProperties(), before);
}

TEST_F(PersistenceTest, AReadPutsTheRedBackgroundRightAgain) {
  control_.Picture(slope({4, 3}, 1));
  control_.resultPicture();
  EXPECT_EQ(stage_.place().userControl().BackColor(), 0xFF);
  EXPECT_EQ(errorOfRestore(u"BackColor", Variant(Long{0x123456})), 0);
  EXPECT_EQ(stage_.place().userControl().BackColor(), 0x123456);
}

TEST_F(PersistenceTest, AValueThatIsNoPictureIsAMismatch) {
  for (const std::u16string_view name : {u"Picture", u"disabledPicture"}) {
    EXPECT_EQ(errorOfRestore(name, Variant(Long{0})), RuntimeError::TypeMismatch) << shown(name);
    EXPECT_EQ(errorOfRestore(name, Variant(u"picture.png")), RuntimeError::TypeMismatch) << shown(name);
    EXPECT_EQ(errorOfRestore(name, PictureReference()), 0) << shown(name);
  }
}

TEST_F(PersistenceTest, AValueOfAnotherKindIsConvertedOrAMismatch) {
  for (const std::u16string_view name :
       {u"maskColor", u"BackColor", u"WithBorder", u"automaticClickTiming", u"automaticClickFirstTiming"}) {
    EXPECT_EQ(errorOfRestore(name, Variant(u"wide")), RuntimeError::TypeMismatch) << shown(name);
    EXPECT_EQ(errorOfRestore(name, Variant(4294967296.0)), RuntimeError::Overflow) << shown(name);
    EXPECT_EQ(errorOfRestore(name, slope({1, 1}, 1)), RuntimeError::TypeMismatch) << shown(name);
    EXPECT_EQ(errorOfRestore(name, Variant(2.5)), 0) << shown(name);
  }
  EXPECT_EQ(control_.maskColor(), 2);
  EXPECT_EQ(control_.withBorder(), 2);
  for (const std::u16string_view name : {u"AutoResize", u"enabled", u"automaticClick", u"stretch"}) {
    EXPECT_EQ(errorOfRestore(name, Variant(u"perhaps")), RuntimeError::TypeMismatch) << shown(name);
    EXPECT_EQ(errorOfRestore(name, slope({1, 1}, 1)), RuntimeError::TypeMismatch) << shown(name);
    EXPECT_EQ(errorOfRestore(name, Variant(Long{65536})), 0) << shown(name);
  }
  EXPECT_EQ(control_.AutoResize(), True);
  EXPECT_EQ(control_.enabled(), True);
}

TEST_F(PersistenceTest, AnErrorInTheMiddleLeavesWhatWasReadBefore) {
  control_.automaticClick(True);
  control_.withBorder(6);
  bag_.PropertyBag::WriteProperty(u"maskColor", Variant(Long{1}), Variant(Long{0}));
  bag_.PropertyBag::WriteProperty(u"BackColor", Variant(Long{2}), Variant(Long{0}));
  bag_.PropertyBag::WriteProperty(u"AutoResize", Variant(True), Variant(False));
  stage_.log().fail("read enabled or True", RuntimeError::OutOfMemory);
  const Calls calls = restore(bag_);
  EXPECT_EQ(calls.back(), "error 7");
  EXPECT_EQ(control_.Picture(), nullptr);
  EXPECT_EQ(control_.maskColor(), 1);
  EXPECT_EQ(control_.backcolor(), 2);
  EXPECT_EQ(control_.withBorder(), 0);
  EXPECT_EQ(control_.AutoResize(), True);
  EXPECT_EQ(control_.automaticClick(), True) << "was not read any more";
  EXPECT_EQ(stage_.place().userControl().BackColor(), 2);
}

TEST_F(PersistenceTest, AnErrorBeforeTheBackgroundsLeavesThoseAsTheyWere) {
  control_.backcolor(7);
  bag_.PropertyBag::WriteProperty(u"BackColor", Variant(Long{2}), Variant(Long{0}));
  stage_.log().fail("read WithBorder or 0", RuntimeError::OutOfMemory);
  EXPECT_EQ(restore(bag_).back(), "error 7");
  EXPECT_EQ(control_.backcolor(), 2);
  EXPECT_EQ(stage_.place().userControl().BackColor(), 7);
}

TEST_F(PersistenceTest, HostileNumbersFailInTheReadThatUsesThem) {
  EXPECT_EQ(errorOfRestore(u"WithBorder", Variant(Long{0x7FFFFFFF})), RuntimeError::Overflow);
  EXPECT_EQ(control_.stretch(), False) << "all was read before";
  EXPECT_EQ(errorOfRestore(u"WithBorder", Variant(Long{-0x7FFFFFFF})), 0);
  EXPECT_EQ(errorOfRestore(u"stretch", Variant(True)), RuntimeError::Overflow);
}

TEST_F(PersistenceTest, AFailingWriteComesOutOfTheSave) {
  stage_.log().fail("write WithBorder 0 or 0", RuntimeError::OutOfMemory);
  const Calls calls = stage_.callsOf([&] { stage_.place().userControl().save(bag_); });
  EXPECT_EQ(calls.size(), 5U);
  EXPECT_EQ(calls.back(), "error 7");
}

TEST(TransparentBitmapLife, AControlThatGoesReleasesItsPicturesAndTimers) {
  RecordingStage stage;
  transparentBitmap& control = stage.add();
  const auto main = slope({4, 3}, 1);
  const auto other = slope({4, 3}, 2);
  const auto overlay = slope({4, 3}, 3);
  control.Picture(main);
  control.disabledPicture(other);
  control.AddBitmap(overlay, 0, 0);
  const auto result = control.resultPicture();
  stage.form().remove(control);
  EXPECT_EQ(main.use_count(), 1);
  EXPECT_EQ(other.use_count(), 1);
  EXPECT_EQ(overlay.use_count(), 1);
  EXPECT_EQ(result.use_count(), 1);
}

TEST(TransparentBitmapLife, AControlWhoseBagFailsDoesNotStandOnItsForm) {
  headless::Form form;
  PropertyBag bag;
  bag.WriteProperty(u"Picture", Variant(Long{1}), PictureReference());
  EXPECT_EQ(errorOf([&] { form.add<transparentBitmap>({0, 0, 9, 9}, bag); }), RuntimeError::TypeMismatch);
}

}  // namespace
}  // namespace tessaly::tests
