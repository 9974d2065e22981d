#include <gtest/gtest.h>

#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Drawing.h"
#include "tessaly/platform/fake/Pictures.h"

namespace tessaly::platform {
namespace {

TEST(DesktopOverrides, PutADrawingInPlaceForAScope) {
  Drawing* const own = desktop().drawing;
  Pictures* const pictures = desktop().pictures;
  fake::Drawing drawing;
  {
    const Override override(drawing);
    EXPECT_EQ(desktop().drawing, &drawing);
    EXPECT_EQ(desktop().pictures, pictures);
  }
  EXPECT_EQ(desktop().drawing, own);
}

TEST(DesktopOverrides, PutPicturesInPlaceForAScope) {
  Pictures* const own = desktop().pictures;
  Drawing* const drawing = desktop().drawing;
  fake::Pictures pictures;
  {
    const Override override(pictures);
    EXPECT_EQ(desktop().pictures, &pictures);
    EXPECT_EQ(desktop().drawing, drawing);
  }
  EXPECT_EQ(desktop().pictures, own);
}

TEST(DesktopOverrides, NestAndEndInTheReverseOfTheirOrder) {
  Drawing* const own = desktop().drawing;
  fake::Drawing outer;
  fake::Drawing inner;
  const Override outerInForce(outer);
  {
    const Override innerInForce(inner);
    EXPECT_EQ(desktop().drawing, &inner);
  }
  EXPECT_EQ(desktop().drawing, &outer);
  EXPECT_NE(desktop().drawing, own);
}

TEST(FakePictures, KnowTheFilesThatATestHasPut) {
  fake::Pictures pictures;
  const PicturePixels red{1, 1, {0xFFFF0000}};
  const PicturePixels blue{2, 1, {0xFF0000FF, 0xFF0000FF}};
  EXPECT_EQ(pictures.decode("picture"), std::nullopt);
  pictures.put("picture", red);
  EXPECT_EQ(pictures.decode("picture"), red);
  pictures.put("picture", blue);
  EXPECT_EQ(pictures.decode("picture"), blue);
  EXPECT_EQ(pictures.decode("another"), std::nullopt);
}

TEST(FakePictures, FailWhenTheyAreTold) {
  fake::Pictures pictures;
  const PicturePixels red{1, 1, {0xFFFF0000}};
  const std::string png = pictures.encodePng(red);
  EXPECT_EQ(pictures.decode(png), red);
  pictures.put("picture", red);
  pictures.failDecode();
  EXPECT_EQ(pictures.decode(png), std::nullopt);
  EXPECT_EQ(pictures.decode("picture"), std::nullopt);
  pictures.failEncode();
  EXPECT_EQ(pictures.encodePng(red), "");
  const std::vector<std::string> expected = {"encodePng", "decode", "decode", "decode", "encodePng"};
  EXPECT_EQ(pictures.calls(), expected);
}

TEST(FakeDrawings, RecordTheirCalls) {
  fake::Drawing drawing;
  const DeviceContext surface = drawing.createSurface(2, 2);
  const DrawingObject brush = drawing.CreateSolidBrush(0x123456);
  const DrawingObject before = drawing.SelectObject(surface, brush);
  drawing.FillRect(surface, {0, 0, 1, 1}, brush);
  drawing.TransparentBlt(surface, 0, 0, 1, 1, surface, 1, 1, 1, 1, 0);
  drawing.SelectObject(surface, before);
  EXPECT_EQ(drawing.surfaces(), 1U);
  EXPECT_EQ(drawing.brushes(), 1U);
  drawing.DeleteObject(brush);
  drawing.deleteSurface(surface);
  const std::vector<std::string> expected = {"createSurface", "CreateSolidBrush", "SelectObject",
                                             "FillRect",      "TransparentBlt",   "SelectObject",
                                             "DeleteObject",  "deleteSurface"};
  EXPECT_EQ(drawing.calls(), expected);
  EXPECT_EQ(drawing.surfaces() + drawing.brushes(), 0U);
  drawing.forgetCalls();
  EXPECT_TRUE(drawing.calls().empty());
}

TEST(FakeDrawings, FailByName) {
  fake::Drawing drawing;
  const DeviceContext surface = drawing.createSurface(1, 1);
  const DrawingObject brush = drawing.CreateSolidBrush(0xFFFFFF);
  for (const char* call :
       {"createSurface", "CreateSolidBrush", "SelectObject", "FillRect", "TransparentBlt", "DeleteObject"}) {
    drawing.fail(call);
  }
  EXPECT_EQ(drawing.createSurface(1, 1), 0);
  EXPECT_EQ(drawing.CreateSolidBrush(0), 0);
  EXPECT_EQ(drawing.SelectObject(surface, brush), 0);
  EXPECT_EQ(drawing.FillRect(surface, {0, 0, 1, 1}, brush), 0);
  EXPECT_FALSE(drawing.TransparentBlt(surface, 0, 0, 1, 1, surface, 0, 0, 1, 1, 5));
  EXPECT_FALSE(drawing.DeleteObject(brush));
  EXPECT_EQ(drawing.pixels(surface).pixels[0], 0U);
  drawing.mend("FillRect");
  EXPECT_EQ(drawing.FillRect(surface, {0, 0, 1, 1}, brush), 1);
  EXPECT_EQ(drawing.pixels(surface).pixels[0], 0xFFFFFFU);
}

}  // namespace
}  // namespace tessaly::platform
