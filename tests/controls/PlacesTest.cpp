// Where pictures come to lie, and what the results are, by the calls and by single pixels.

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/controls/Figures.h"
#include "tests/controls/RecordingStage.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

/// The copies in a composition, without where they come from.
Calls places(const Calls& calls) {
  Calls found;
  for (const std::string& call : calls) {
    if (call.starts_with("TransparentBlt ")) found.push_back(call.substr(15, call.find(" from") - 15));
  }
  return found;
}

/// The places in a control of a size, with a border and a picture.
class Composed {
 public:
  Composed(PixelSize size, Long border, PixelSize picture) : stage_(size), control_(stage_.add()) {
    control_.Picture(plain(picture, 5));
    control_.withBorder(border);
  }

  transparentBitmap& control() { return control_; }

  Calls onSurface() {
    return places(stage_.callsOf([this] { transparentBitmapPeer::composeImage(control_); }));
  }
  Calls onResult(Long width, Long height) {
    return places(stage_.callsOf([&] { control_.resultPictureWithWidth(width, height); }));
  }

 private:
  RecordingStage stage_;
  transparentBitmap& control_;
};

Calls composed(PixelSize size, Long border, PixelSize picture) {
  return Composed(size, border, picture).onSurface();
}

TEST(MainPictureTest, LiesInTheMiddleRoundedToTheEvenPixel) {
  EXPECT_EQ(composed({107, 20}, 3, {100, 4}), Calls{"UserControl 3,5 100x4"});
  EXPECT_EQ(composed({107, 20}, 3, {98, 4}), Calls{"UserControl 2,5 98x4"});
  EXPECT_EQ(composed({106, 20}, 3, {101, 4}), Calls{"UserControl 3,5 101x4"});
  EXPECT_EQ(composed({106, 20}, 3, {103, 4}), Calls{"UserControl -2,5 103x4"});
  EXPECT_EQ(composed({106, 20}, 3, {102, 4}), Calls{"UserControl -1,5 102x4"});
  EXPECT_EQ(composed({105, 20}, 0, {100, 4}), Calls{"UserControl 2,8 100x4"});
  EXPECT_EQ(composed({100, 20}, 0, {100, 4}), Calls{"UserControl 0,8 100x4"});
}

TEST(MainPictureTest, LeavesNoRoomForANegativeBorder) {
  EXPECT_EQ(composed({100, 20}, -3, {50, 4}), Calls{"UserControl 25,8 50x4"});
  EXPECT_EQ(composed({100, 20}, -3, {100, 20}), Calls{"UserControl 0,0 100x20"});
}

TEST(MainPictureTest, GoesToAnAreaWithoutASizeAsToAnyOther) {
  Composed composed({10, 6}, 3, {4, 4});
  composed.control().AutoResize(True);
  EXPECT_EQ(composed.onSurface(), Calls{"UserControl 3,3 4x0"});
  composed.control().withBorder(8);
  EXPECT_EQ(composed.onSurface(), Calls{"UserControl 8,8 -6x-10"});
  composed.control().AutoResize(False);
  EXPECT_EQ(composed.onSurface(), Calls{"UserControl -5,-7 4x4"});
}

TEST(OverlaysTest, HangAtTheAreasSizeWithoutTheBordersOffset) {
  Composed composed({50, 41}, 3, {20, 15});
  for (Long alignment = 0; alignment <= 8; ++alignment) {
    composed.control().AddBitmap(plain({7, 4}, 1), alignment, 0);
  }
  // The area is 44 by 35.
  const Calls surface{"0,0", "18,0", "37,0", "0,16", "18,16", "37,16", "0,31", "18,31", "37,31"};
  Calls expected{"UserControl 12,10 20x15"};
  for (const std::string& place : surface) expected.push_back("UserControl " + place + " 7x4");
  EXPECT_EQ(composed.onSurface(), expected);
  // The target is 20 by 15.
  const Calls target{"0,0", "6,0", "13,0", "0,6", "6,6", "13,6", "0,11", "6,11", "13,11"};
  expected = {"result 0,0 20x15"};
  for (const std::string& place : target) expected.push_back("result " + place + " 7x4");
  EXPECT_EQ(composed.onResult(-1, -1), expected);
}

TEST(OverlaysTest, WithoutAnAnchorLieWhereTheOneBeforeLies) {
  Composed composed({50, 41}, 3, {20, 15});
  for (const Long alignment : {9, 8, -1, 1, 0x7FFFFFFF}) {
    composed.control().AddBitmap(plain({7, 4}, 1), alignment, 0);
  }
  const auto expected = [](const std::string& on, const Calls& overlays, const std::string& main) {
    Calls calls{on + " " + main};
    for (const std::string& place : overlays)
      calls.push_back(std::string(on).append(" ").append(place).append(" 7x4"));
    return calls;
  };
  EXPECT_EQ(composed.onSurface(),
            expected("UserControl", {"12,10", "37,31", "37,31", "18,0", "18,0"}, "12,10 20x15"));
  EXPECT_EQ(composed.onResult(-1, -1),
            expected("result", {"0,0", "13,11", "13,11", "6,0", "6,0"}, "0,0 20x15"));
  composed.control().AutoResize(True);
  EXPECT_EQ(composed.onSurface(),
            expected("UserControl", {"0,0", "37,31", "37,31", "18,0", "18,0"}, "3,3 44x35"));
}

TEST(OverlaysTest, BehindAPictureThatFillsTheAreaLieAtTheBordersOffset) {
  Composed composed({50, 41}, 3, {44, 35});
  composed.control().AddBitmap(plain({7, 4}, 1), 9, 0);
  EXPECT_EQ(composed.onSurface(), (Calls{"UserControl 3,3 44x35", "UserControl 3,3 7x4"}));
}

TEST(OverlaysTest, ThatAreNothingShowWhatTheirWorkSurfaceHolds) {
  Composed composed({50, 41}, 0, {20, 15});
  composed.control().AddBitmap(nullptr, 0, 0);
  EXPECT_EQ(composed.onSurface(), (Calls{"UserControl 15,13 20x15", "UserControl 0,0 0x0"}));
  composed.control().AddBitmap(plain({7, 4}, 1), 0, 0);
  composed.control().AddBitmap(nullptr, 8, 0);
  EXPECT_EQ(composed.onSurface().back(), "UserControl 43,37 7x4");
}

TEST(OverlaysTest, BeyondTheNumbersOverflow) {
  Composed composed({100, 80}, 0x3FFFFFFF, {20, 15});
  EXPECT_EQ(composed.onSurface(), Calls{"UserControl -1073741783,-1073741790 20x15"});
  EXPECT_EQ(errorOf([&] { composed.control().AddBitmap(plain({200, 4}, 1), 2, 0); }), RuntimeError::Overflow);
  EXPECT_EQ(transparentBitmapPeer::bitmapCount(composed.control()), 1U) << "it is added nevertheless";
}

TEST(CompositionTest, OfABorderWhoseDoubleIsTooLargeOverflowsBeforeAnythingIsDrawn) {
  RecordingStage stage;
  transparentBitmap& control = stage.add();
  EXPECT_EQ(errorOf([&] { control.withBorder(0x40000000); }), RuntimeError::Overflow);
  EXPECT_EQ(stage.callsOf([&] { transparentBitmapPeer::composeImage(control); }),
            (Calls{"UserControl.ScaleWidth", "error 6"}));
}

class ResultTest : public testing::Test {
 protected:
  ResultTest() {
    control_.backcolor(0x112233);
    control_.Picture(ring({20, 15}, 40));
  }

  std::uint32_t pixel(const PictureReference& picture, Long x, Long y) {
    return picture->pixels()[static_cast<std::size_t>(y) * static_cast<std::size_t>(picture->size().width) +
                             static_cast<std::size_t>(x)];
  }

  headless::Form form_;
  transparentBitmap& control_ = form_.add<transparentBitmap>({0, 0, 50, 41});
};

TEST_F(ResultTest, HasTheNaturalSizeWhereNoOtherIsAsked) {
  EXPECT_EQ(control_.resultPicture()->size(), (PixelSize{20, 15}));
  EXPECT_EQ(control_.resultPictureWithWidth(200, 0)->size(), (PixelSize{200, 15}));
  EXPECT_EQ(control_.resultPictureWithWidth(-1, 7)->size(), (PixelSize{20, 7}));
  EXPECT_EQ(control_.resultPictureWithWidth(3, 4)->size(), (PixelSize{3, 4}));
}

TEST_F(ResultTest, IsTheMainPictureOnTheBackgroundAndCoversWholly) {
  const auto result = control_.resultPicture();
  EXPECT_EQ(pixel(result, 0, 0), 0xFFFFFFFF);
  EXPECT_EQ(pixel(result, 10, 7), 0xFF332211);
  EXPECT_TRUE(result->isOpaque());
}

TEST_F(ResultTest, KeepsItsPixelsWhenAnotherIsMade) {
  const auto first = control_.resultPicture();
  const std::vector<std::uint32_t> pixels(first->pixels().begin(), first->pixels().end());
  control_.Picture(plain({20, 15}, 0x00FF00));
  control_.resultPicture();
  EXPECT_TRUE(std::ranges::equal(first->pixels(), pixels));
}

TEST_F(ResultTest, OfAControlWithoutAPictureIsTheOneBefore) {
  const auto before = control_.resultPictureWithWidth(33, 22);
  control_.Picture(nullptr);
  EXPECT_EQ(control_.resultPicture()->size(), (PixelSize{33, 22}));
  EXPECT_TRUE(std::ranges::equal(control_.resultPicture()->pixels(), before->pixels()));
}

TEST_F(ResultTest, BeforeAnyOtherAndWithoutAPictureIsEmpty) {
  auto& fresh = form_.add<transparentBitmap>({0, 0, 9, 9});
  EXPECT_TRUE(fresh.resultPicture()->isEmpty()) << "a picture without an image has no size";
  fresh.Picture(nullptr);
  EXPECT_TRUE(fresh.resultPicture()->isEmpty());
}

TEST_F(ResultTest, TurnsTheBackgroundRedUntilBackcolorIsAssigned) {
  auto& place = form_.placeOf(control_);
  const auto corner = [&] { return pixel(place.picture(), 0, 0); };
  EXPECT_EQ(corner(), 0xFF332211);
  control_.resultPicture();
  EXPECT_EQ(corner(), 0xFF332211) << "not before the next composition";
  EXPECT_EQ(control_.backcolor(), 0x112233);
  control_.AutoResize(False);
  EXPECT_EQ(corner(), 0xFFFF0000);
  EXPECT_EQ(pixel(place.picture(), 25, 20), 0xFFFF0000) << "also through the picture";
  control_.backcolor(0x112233);
  EXPECT_EQ(corner(), 0xFF332211);
}

TEST_F(ResultTest, WithNothingToShowLeavesTheBackgroundAsItIs) {
  control_.Picture(nullptr);
  control_.resultPicture();
  EXPECT_EQ(form_.placeOf(control_).userControl().BackColor(), 0x112233);
}

TEST_F(ResultTest, LargerThanABoxMayBeIsAnInvalidSize) {
  EXPECT_EQ(errorOf([&] { control_.resultPictureWithWidth(32768, 1); }), RuntimeError::InvalidPropertyValue);
  EXPECT_EQ(errorOf([&] { control_.resultPictureWithWidth(0x7FFFFFFF, 0x7FFFFFFF); }),
            RuntimeError::InvalidPropertyValue);
  EXPECT_EQ(errorOf([&] { control_.resultPictureWithWidth(32767, 32767); }), RuntimeError::OutOfMemory);
  EXPECT_EQ(control_.resultPictureWithWidth(2, 2)->size(), (PixelSize{2, 2})) << "it goes on after that";
}

class PointerTest : public testing::Test {
 protected:
  /// Whether the control at 30, 20 takes a point of itself for inside.
  bool isInside(Long x, Long y) {
    form_.movePointer({30 + x, 20 + y});
    return transparentBitmapPeer::isMouseInside(control_);
  }

  headless::Form form_;
  transparentBitmap& control_ = form_.add<transparentBitmap>({30, 20, 50, 41});
};

TEST_F(PointerTest, IsInsideUpToOnePixelBeyondTheRightAndBottomEdges) {
  EXPECT_TRUE(isInside(0, 0));
  EXPECT_TRUE(isInside(25, 20));
  EXPECT_TRUE(isInside(50, 41));
  EXPECT_FALSE(isInside(51, 41));
  EXPECT_FALSE(isInside(50, 42));
  EXPECT_FALSE(isInside(-1, 0));
  EXPECT_FALSE(isInside(0, -1));
}

TEST_F(PointerTest, CountsFromTheControlWhereverTheFormStands) {
  EXPECT_TRUE(isInside(1, 1));
  form_.moveTo({500, 500});
  EXPECT_FALSE(transparentBitmapPeer::isMouseInside(control_));
}

}  // namespace
}  // namespace tessaly::tests
