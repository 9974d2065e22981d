// A host's own test: a form without a display, on files, pictures and drawing that are stand-ins.

#include <gtest/gtest.h>

#include "tessaly/forms/PictureBox.h"
#include "tessaly/forms/PropertyBag.h"
#include "tessaly/forms/headless/Form.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Drawing.h"
#include "tessaly/platform/fake/Files.h"
#include "tessaly/platform/fake/Pictures.h"
#include "tests/forms/ControlOfTests.h"
#include "tests/forms/PixelsOfTests.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

class StandInsTest : public testing::Test {
 protected:
  StandInsTest() {
    pictures_.put("red", {2, 1, {0xFFFF0000, 0x00FFFFFF}});
    files_.put(u"red.png", "red");
  }

  platform::fake::Files files_;
  platform::fake::Pictures pictures_;
  platform::fake::Drawing drawing_;
  platform::Override filesInForce_{files_};
  platform::Override picturesInForce_{pictures_};
  platform::Override drawingInForce_{drawing_};
};

TEST_F(StandInsTest, APictureGoesFromAFileToTheScreen) {
  headless::Form form;
  auto& control = form.add<ControlOfTests>({0, 0, 3, 1});
  UserControl& surface = control.surface();
  surface.BackColor(kGreen);
  surface.AutoRedraw(True);
  PictureBox box(surface);
  box.AutoRedraw(True);
  box.AutoSize(True);
  box.BackColor(kBlue);
  box.Picture(LoadPicture(u"red.png"));
  drawing_.TransparentBlt(surface.hDC(), 1, 0, 2, 1, box.hDC(), 0, 0, 2, 1, kBlue);
  EXPECT_EQ(shownRows(*form.placeOf(control).picture()), (Rows{"grg"}));
}

TEST_F(StandInsTest, AFailingDecoderIsError481) {
  pictures_.failDecode();
  EXPECT_EQ(errorOf([] { LoadPicture(u"red.png"); }), RuntimeError::InvalidPicture);
}

TEST_F(StandInsTest, AFailingEncoderIsError481WhereABagIsWritten) {
  PropertyBag bag;
  bag.WriteProperty(u"Picture", LoadPicture(u"red.png"), PictureReference());
  pictures_.failEncode();
  EXPECT_EQ(errorOf([&] { bag.text(); }), RuntimeError::InvalidPicture);
}

TEST_F(StandInsTest, APictureOfATextIsDecodedOnceAndOnlyWhenItIsRead) {
  const PropertyBag bag = PropertyBag::fromText(u"Picture = Picture cmVk\n");
  EXPECT_TRUE(pictures_.calls().empty());
  EXPECT_EQ(shownRows(*pictureOf(bag.ReadProperty(u"Picture", PictureReference()))), (Rows{"r."}));
  bag.ReadProperty(u"Picture", PictureReference());
  EXPECT_EQ(bag.text(), u"Picture = Picture cmVk\n");
  EXPECT_EQ(pictures_.calls(), std::vector<std::string>{"decode"});
}

TEST_F(StandInsTest, SurfacesAreGivenBack) {
  {
    headless::Form form;
    auto& control = form.add<ControlOfTests>({0, 0, 3, 1});
    control.surface().AutoRedraw(True);
    form.placeOf(control).drag({4, 4});
    EXPECT_EQ(drawing_.surfaces(), 1U);
  }
  EXPECT_EQ(drawing_.surfaces(), 0U);
}

}  // namespace
}  // namespace tessaly::tests
