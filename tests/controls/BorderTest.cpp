// The border's lines: when they show, their width and their colours.

#include <gtest/gtest.h>
#include <algorithm>

#include "tests/controls/Figures.h"
#include "tests/controls/RecordingStage.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

class BorderTest : public testing::Test {
 protected:
  Calls show(bool visible, bool raised) {
    return stage_.callsOf([&] { transparentBitmapPeer::showBorder(control_, visible, raised); });
  }

  /// The colours of the top and left lines and of the bottom and right ones.
  void expectColours(bool raised, const std::string& topLeft, const std::string& bottomRight) {
    const Calls calls = show(true, raised);
    ASSERT_EQ(calls.size(), 12U);
    EXPECT_EQ(Calls(calls.begin() + 8, calls.end()),
              (Calls{"Line1(0).BorderColor = &H" + topLeft, "Line1(1).BorderColor = &H" + bottomRight,
                     "Line1(2).BorderColor = &H" + topLeft, "Line1(3).BorderColor = &H" + bottomRight}));
  }

  void expectShades(OLE_COLOR colour, const std::string& dark, const std::string& light) {
    SCOPED_TRACE(colour);
    control_.backcolor(colour);
    expectColours(true, light, dark);
    expectColours(false, dark, light);
  }

  RecordingStage stage_;
  transparentBitmap& control_ = stage_.add();
};

TEST_F(BorderTest, DoesNothingBelowAWidthOf1) {
  EXPECT_EQ(show(true, true), Calls());
  control_.withBorder(-1);
  EXPECT_EQ(show(true, true), Calls());
  EXPECT_EQ(show(false, false), Calls());
}

TEST_F(BorderTest, ShowsWidthThenVisibilityOfEachLineThenTheColours) {
  control_.withBorder(2);
  EXPECT_EQ(
      show(true, true),
      (Calls{"Line1(0).BorderWidth = 2", "Line1(0).Visible = True", "Line1(1).BorderWidth = 2",
             "Line1(1).Visible = True", "Line1(2).BorderWidth = 2", "Line1(2).Visible = True",
             "Line1(3).BorderWidth = 2", "Line1(3).Visible = True", "Line1(0).BorderColor = &H1E1E1E",
             "Line1(1).BorderColor = &H0", "Line1(2).BorderColor = &H1E1E1E", "Line1(3).BorderColor = &H0"}));
}

TEST_F(BorderTest, GoesWithItsColoursLeftAsTheyWere) {
  control_.withBorder(2);
  for (const bool raised : {false, true}) {
    EXPECT_EQ(show(false, raised),
              (Calls{"Line1(0).BorderWidth = 2", "Line1(0).Visible = False", "Line1(1).BorderWidth = 2",
                     "Line1(1).Visible = False", "Line1(2).BorderWidth = 2", "Line1(2).Visible = False",
                     "Line1(3).BorderWidth = 2", "Line1(3).Visible = False"}));
  }
}

TEST_F(BorderTest, HasTheShadesOfTheBackground) {
  control_.withBorder(1);
  expectShades(0x000000, "0", "1E1E1E");
  expectShades(0xC0C0C0, "A2A2A2", "DEDEDE");
  expectShades(0xFFFFFF, "E1E1", "1EFFFF");
  expectShades(static_cast<OLE_COLOR>(0x8000000F), "E10000", "FF1E2D");
}

TEST_F(BorderTest, HasOneMoreBlueWhereGreenIs255AndRedAndBlueAreAtLeastThat) {
  control_.withBorder(1);
  expectShades(0x40FFBF, "23E1A1", "5FFFDD");
  expectShades(0x40FFBE, "22E1A0", "5EFFDC");
  expectShades(0xFFFE00, "E1E000", "FFFF1E");
}

TEST_F(BorderTest, TakesAColourWithAHighBitAsANegativeNumber) {
  control_.withBorder(1);
  // -1 gives 255, floor(-1 / 256) = -1 gives 255, and floor(-1 / 65535) = -1 gives 255.
  expectShades(-1, "E1E1E1", "FFFFFF");
  // -65535 is divided without a rest: 1, floor(-65535 / 256) = -256 gives 0, and -1 gives 255.
  expectShades(-65535, "E10000", "FF1E1F");
}

TEST_F(BorderTest, OfMoreThan16BitsOverflowsAtTheFirstLine) {
  control_.withBorder(32767);
  EXPECT_EQ(show(true, true).front(), "Line1(0).BorderWidth = 32767");
  control_.withBorder(32768);
  EXPECT_EQ(show(true, true), Calls{"error 6"});
  EXPECT_EQ(show(false, false), Calls{"error 6"});
}

TEST_F(BorderTest, IsNoPartOfACompositionNorOfAResult) {
  control_.withBorder(2);
  control_.Picture(slope({40, 30}, 7));
  const auto before = control_.resultPicture();
  show(true, true);
  EXPECT_TRUE(std::ranges::equal(control_.resultPicture()->pixels(), before->pixels()));
  const Calls composed = stage_.callsOf([this] { transparentBitmapPeer::composeImage(control_); });
  for (const std::string& call : composed) EXPECT_EQ(call.find("Line1"), std::string::npos) << call;
}

}  // namespace
}  // namespace tessaly::tests
