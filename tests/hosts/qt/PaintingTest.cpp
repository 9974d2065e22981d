// What a widget shows is what the form without a display shows, pixel by pixel.

#include "tessaly/forms/headless/Form.h"
#include "tessaly/hosts/qt/Pictures.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Drawing.h"
#include "tests/controls/Figures.h"
#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

using headless::Form;

void dress(transparentBitmap& button) {
  button.backcolor(0x80C0F0);
  button.maskColor(kMagenta);
  button.Picture(ring({30, 22}, 90));
  button.disabledPicture(slope({30, 22}, 10));
  button.AddBitmap(ring({9, 9}, 200), 8, kMagenta);
  button.AddBitmap(plain({5, 4}, 0x0000FF), 0, kMagenta);
  button.withBorder(2);
}

/// The same button on both forms.
class QtPaintingTest : public ButtonOnStage {
 protected:
  QtPaintingTest() {
    dress(button().control());
    dress(twin_);
  }

  void moveBoth(QPoint point) {
    stage_.move(point);
    form_.movePointer({50 + point.x(), 50 + point.y()});
  }
  void pressBoth() {
    stage_.press();
    form_.press();
  }

  void expectAlike() {
    EXPECT_EQ(seenOn(button()),
              qt::toImage(form_.placeOf(twin_).picture()).convertToFormat(QImage::Format_RGB32));
  }

  Form form_;
  transparentBitmap& twin_ = form_.add<transparentBitmap>({50, 50, 48, 40});
};

TEST_F(QtPaintingTest, IdleItLooksAsWithoutADisplay) { expectAlike(); }

TEST_F(QtPaintingTest, RaisedAndSunkenItLooksAsWithoutADisplay) {
  moveBoth(Stage::kInside);
  expectAlike();
  pressBoth();
  expectAlike();
}

TEST_F(QtPaintingTest, DisabledItLooksAsWithoutADisplay) {
  button().enabled(false);
  twin_.enabled(False);
  expectAlike();
}

TEST_F(QtPaintingTest, ScaledItLooksAsWithoutADisplay) {
  button().AutoResize(true);
  twin_.AutoResize(True);
  expectAlike();
}

TEST_F(QtPaintingTest, StretchedItHasTheSameSizeAndLook) {
  button().stretch(true);
  twin_.stretch(True);
  EXPECT_EQ(button().size(), QSize(34, 26));
  expectAlike();
}

TEST_F(QtPaintingTest, ResizedItLooksAsWithoutADisplay) {
  button().resize(61, 33);
  form_.placeOf(twin_).drag({61, 33});
  expectAlike();
}

TEST_F(QtPaintingTest, WithoutAPictureItIsBare) {
  button().control().Picture(nullptr);
  twin_.Picture(nullptr);
  expectAlike();
}

TEST_F(QtPaintingTest, PaintingAgainComposesNothing) {
  platform::fake::Drawing drawing;
  const platform::Override override(drawing);
  const QImage before = seenOn(button());
  EXPECT_EQ(seenOn(button()), before);
  EXPECT_TRUE(drawing.calls().empty());
}

TEST_F(QtPaintingTest, AWindowThatShowsThroughGetsSolidPixels) {
  QImage target(button().size(), QImage::Format_ARGB32_Premultiplied);
  target.fill(Qt::transparent);
  button().render(&target);
  for (int y = 0; y < target.height(); ++y) {
    for (int x = 0; x < target.width(); ++x) ASSERT_EQ(qAlpha(target.pixel(x, y)), 255);
  }
}

TEST_F(QtPaintingTest, OnADenseScreenEachPixelIsASquareOfPixels) {
  const QImage plainly = seenOn(button());
  QImage target(button().size() * 3, QImage::Format_RGB32);
  target.setDevicePixelRatio(3);
  button().render(&target);
  target.setDevicePixelRatio(1);
  EXPECT_EQ(target, plainly.scaled(target.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation));
}

TEST_F(QtPaintingTest, AWidgetThatMayNotHaveItsSizeShowsWhatThereIsRoomFor) {
  button().setFixedSize(60, 20);
  button().stretch(true);
  twin_.stretch(True);
  EXPECT_EQ(button().size(), QSize(60, 20));
  const QImage shown = seenOn(button());
  const QImage whole = qt::toImage(form_.placeOf(twin_).picture()).convertToFormat(QImage::Format_RGB32);
  EXPECT_EQ(shown.copy(0, 0, 34, 20), whole.copy(0, 0, 34, 20));
  EXPECT_EQ(shown.pixelColor(59, 19), QColor(0xF0, 0xC0, 0x80));
  EXPECT_TRUE(errors_.empty());
}

TEST_F(QtPaintingTest, WhereThereIsNoMemoryTheErrorIsToldAndTheLoopGoesOn) {
  platform::fake::Drawing drawing;
  drawing.fail("createSurface");
  const platform::Override override(drawing);
  button().resize(70, 70);
  EXPECT_EQ(errors_, std::vector<Long>{RuntimeError::OutOfMemory});
}

}  // namespace
}  // namespace tessaly::tests
