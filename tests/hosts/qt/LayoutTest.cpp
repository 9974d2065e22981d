// A picture button among other widgets: what it asks of a layout, and what it does with what it gets.

#include <gtest/gtest.h>

#include <QEvent>
#include <QHBoxLayout>
#include <algorithm>

#include "tessaly/hosts/qt/Pictures.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Drawing.h"
#include "tests/controls/Figures.h"
#include "tests/hosts/qt/Stage.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

using qt::PictureButton;

class QtLayoutTest : public testing::Test {
 protected:
  QtLayoutTest() {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->addWidget(button_);
    button_->Picture(qt::toImage(slope({20, 16}, 50)));
    button_->withBorder(3);
  }

  void show(QSize size) {
    window_.resize(size);
    window_.show();
    settle();
  }

  QWidget window_;
  QHBoxLayout* layout_ = new QHBoxLayout(&window_);
  PictureButton* button_ = new PictureButton(&window_);
};

TEST_F(QtLayoutTest, ItAsksForItsPictureAndBorder) {
  EXPECT_EQ(button_->sizeHint(), QSize(26, 22));
  button_->withBorder(-4);
  EXPECT_EQ(button_->sizeHint(), QSize(20, 16));
  button_->enabled(false);
  EXPECT_EQ(button_->sizeHint(), QSize(0, 0));
  button_->disabledPicture(qt::toImage(slope({7, 9}, 50)));
  EXPECT_EQ(button_->sizeHint(), QSize(7, 9));
}

TEST_F(QtLayoutTest, ABorderWiderThanAnyWidgetAsksForNoMoreThanThat) {
  EXPECT_EQ(errorOf([&] { button_->withBorder(0x3FFFFFFF); }), 0);
  EXPECT_EQ(button_->sizeHint(), QSize(32767, 32767));
}

TEST_F(QtLayoutTest, ALayoutGivesItWhatItAsksFor) {
  show({200, 100});
  EXPECT_EQ(button_->size(), QSize(26, 22));
}

TEST_F(QtLayoutTest, AnotherPictureMakesTheLayoutAskAgain) {
  show({200, 100});
  button_->Picture(qt::toImage(slope({40, 30}, 50)));
  settle();
  EXPECT_EQ(button_->size(), QSize(46, 36));
}

TEST_F(QtLayoutTest, AnAssignmentThatChangesNoSizeTroublesNoLayout) {
  show({200, 100});
  struct Counter : QObject {
    int requests = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      requests += event->type() == QEvent::LayoutRequest ? 1 : 0;
      return false;
    }
  } counter;
  window_.installEventFilter(&counter);
  button_->backcolor(0x102030);
  button_->Picture(qt::toImage(plain({20, 16}, 5)));
  settle();
  EXPECT_EQ(counter.requests, 0);
  button_->withBorder(4);
  settle();
  EXPECT_EQ(counter.requests, 1);
}

TEST_F(QtLayoutTest, WhereItMayGrowItFillsTheLayout) {
  button_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  button_->AutoResize(true);
  show({200, 100});
  EXPECT_EQ(button_->size(), QSize(200, 100));
  EXPECT_EQ(seenOn(*button_).pixelColor(3, 3), QColor(Qt::white));
}

TEST_F(QtLayoutTest, StretchedItTakesItsOwnSizeInAnyLayoutAndIsComposed) {
  button_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  button_->stretch(true);
  show({200, 100});
  EXPECT_EQ(button_->size(), QSize(26, 22));
  EXPECT_EQ(seenOn(*button_).pixelColor(3, 3), QColor(Qt::white));
  window_.resize(240, 130);
  settle();
  EXPECT_EQ(button_->size(), QSize(26, 22));
  EXPECT_EQ(seenOn(*button_).pixelColor(22, 18), QColor(Qt::black));
}

TEST_F(QtLayoutTest, StretchedItFollowsAnotherPictureWithTheLayout) {
  button_->stretch(true);
  show({200, 100});
  button_->Picture(qt::toImage(slope({40, 30}, 50)));
  settle();
  EXPECT_EQ(button_->size(), QSize(46, 36));
  EXPECT_EQ(seenOn(*button_).pixelColor(42, 32), QColor(Qt::black));
}

TEST_F(QtLayoutTest, BeforeItIsShownItDrawsNothing) {
  platform::fake::Drawing drawing;
  const platform::Override override(drawing);
  PictureButton button;
  button.backcolor(0x102030);
  EXPECT_EQ(std::count(drawing.calls().begin(), drawing.calls().end(), "createSurface"), 0);
}

}  // namespace
}  // namespace tessaly::tests
