// The container for any control: here one of the tests' own, with a label, a cursor and a tool tip.

#include "tessaly/hosts/qt/WidgetContainer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPainter>
#include <QTextDocument>

#include "tessaly/forms/Label.h"
#include "tessaly/forms/Screen.h"
#include "tessaly/forms/Timer.h"
#include "tessaly/hosts/qt/Pictures.h"
#include "tests/controls/Figures.h"
#include "tests/forms/ControlOfTests.h"
#include "tests/hosts/qt/Stage.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

using Events = std::vector<std::string>;

class WidgetOfTests final : public qt::WidgetContainer {
 public:
  explicit WidgetOfTests(QWidget* parent) : WidgetContainer(parent), control(place<ControlOfTests>()) {}
  WidgetOfTests(const PropertyBag& bag, QWidget* parent)
      : WidgetContainer(parent), control(place<ControlOfTests>(bag)) {}

  const std::shared_ptr<ControlOfTests> control;
};

class QtWidgetContainerTest : public testing::Test {
 protected:
  ~QtWidgetContainerTest() override {
    stage_.destroyWindow();
    ControlOfTests::onInit() = {};
    EXPECT_EQ(ControlOfTests::count(), 0);
  }

  ControlOfTests& control() const { return *widget_->control; }
  Container& container() const { return control().surface().container(); }

  void show() {
    stage_.show(*widget_, {40, 30});
    control().events.clear();
  }

  Stage stage_;
  WidgetOfTests* widget_ = new WidgetOfTests(&stage_.window());
};

TEST_F(QtWidgetContainerTest, AControlIsMadeInitialisedAndResizedAndAgainWhenItIsShown) {
  EXPECT_EQ(control().events, (Events{"InitProperties", "Resize"}));
  control().events.clear();
  stage_.show(*widget_, {40, 30});
  ASSERT_FALSE(control().events.empty());
  EXPECT_EQ(control().events.front(), "Resize");
  EXPECT_EQ(control().surface().Width(), 600);
  EXPECT_EQ(control().surface().Height(), 450);
}

TEST_F(QtWidgetContainerTest, AStoredControlReadsItsProperties) {
  PropertyBag bag;
  bag.WriteProperty(u"Size", Variant(Long{7}), Variant(Long{0}));
  const auto stored = std::make_unique<WidgetOfTests>(bag, nullptr);
  EXPECT_EQ(stored->control->size, 7);
  EXPECT_EQ(longOf(stored->save().ReadProperty(u"Size", Variant(Long{0}))), 7);
}

TEST_F(QtWidgetContainerTest, WhatABeginningRaisesComesOutOfTheConstructor) {
  ControlOfTests::onInit() = [](ControlOfTests&) { throw RuntimeError(RuntimeError::TypeMismatch); };
  EXPECT_EQ(errorOf([&] { WidgetOfTests widget(nullptr); }), RuntimeError::TypeMismatch);
}

TEST_F(QtWidgetContainerTest, ASizeThatTheControlAssignsIsTheWidgetsWithOneResize) {
  show();
  control().surface().Width(750);
  EXPECT_EQ(control().events, (Events{"Resize"}));
  EXPECT_EQ(widget_->size(), QSize(50, 30));
}

TEST_F(QtWidgetContainerTest, WhatAResizeRaisesComesOutOfAnAssignmentAndNotOutOfQt) {
  show();
  std::vector<Long> errors;
  widget_->setErrorHandler([&](const RuntimeError& error) { errors.push_back(error.number()); });
  control().on["Resize"] = [] { throw RuntimeError(RuntimeError::Overflow); };
  EXPECT_EQ(errorOf([&] { control().surface().Width(750); }), RuntimeError::Overflow);
  EXPECT_TRUE(errors.empty());
  widget_->resize(60, 60);
  EXPECT_EQ(errors, std::vector<Long>{RuntimeError::Overflow});
}

TEST_F(QtWidgetContainerTest, WhatPaintRaisesGoesToTheErrorHandler) {
  show();
  std::vector<Long> errors;
  widget_->setErrorHandler([&](const RuntimeError& error) { errors.push_back(error.number()); });
  control().on["Paint"] = [] { throw RuntimeError(RuntimeError::TypeMismatch); };
  seenOn(*widget_);
  EXPECT_EQ(errors, std::vector<Long>{RuntimeError::TypeMismatch});
}

TEST_F(QtWidgetContainerTest, AControlThatShowsItselfInItsPaintEventIsShownByThat) {
  show();
  control().on["Paint"] = [&] { control().surface().Refresh(); };
  seenOn(*widget_);
  EXPECT_EQ(control().events, (Events{"Paint"}));
}

TEST_F(QtWidgetContainerTest, ThePointersPlaceIsInTheWidgetsPixels) {
  show();
  stage_.move({7, 9});
  EXPECT_EQ(container().ScreenToClient(container().GetCursorPos()), (PixelPoint{7, 9}));
  EXPECT_EQ(control().events, (Events{"MouseMove 0 0 7,9"}));
}

TEST_F(QtWidgetContainerTest, VisibleIsTheWidgetsOwnFlag) {
  show();
  stage_.window().hide();
  EXPECT_TRUE(container().isVisible());
  widget_->hide();
  EXPECT_FALSE(container().isVisible());
}

TEST_F(QtWidgetContainerTest, ItsWindowIsTheOneThatHoldsIt) {
  show();
  EXPECT_EQ(container().hWnd(), static_cast<platform::WindowHandle>(stage_.window().winId()));
}

TEST_F(QtWidgetContainerTest, EachTimerThatRunsIsOneOfQts) {
  show();
  int ticks = 0;
  Timer timer(control().surface(), [&] { ++ticks; });
  EXPECT_TRUE(timersOf(*widget_).empty());
  timer.Enabled(True);
  EXPECT_TRUE(timersOf(*widget_).empty());
  timer.Interval(100);
  EXPECT_EQ(timersOf(*widget_), std::vector<int>{100});
  timer.Interval(200);
  EXPECT_EQ(timersOf(*widget_), std::vector<int>{200});
  tick(*widget_, 200);
  EXPECT_EQ(ticks, 1);
  EXPECT_EQ(timersOf(*widget_), std::vector<int>{200});
  timer.Enabled(False);
  EXPECT_TRUE(timersOf(*widget_).empty());
}

TEST_F(QtWidgetContainerTest, ATickMayBeginItsTimerAnewOrEndIt) {
  show();
  Timer* self = nullptr;
  Timer timer(control().surface(), [&] { self->Interval(self->Interval() == 100 ? 70 : 0); });
  self = &timer;
  timer.Enabled(True);
  timer.Interval(100);
  tick(*widget_, 100);
  EXPECT_EQ(timersOf(*widget_), std::vector<int>{70});
  tick(*widget_, 70);
  EXPECT_TRUE(timersOf(*widget_).empty());
}

TEST_F(QtWidgetContainerTest, CursorsAreThoseThatFormsNumber) {
  control().surface().MousePointer(11);
  EXPECT_EQ(widget_->cursor().shape(), Qt::WaitCursor);
  control().surface().MousePointer(15);
  EXPECT_EQ(widget_->cursor().shape(), Qt::SizeAllCursor);
  control().surface().MousePointer(16);
  EXPECT_EQ(widget_->cursor().shape(), Qt::ArrowCursor);
  control().surface().setMouseIcon({ring({32, 32}, 9), {13, 5}});
  control().surface().MousePointer(99);
  EXPECT_EQ(widget_->cursor().hotSpot(), QPoint(13, 5));
  EXPECT_EQ(widget_->cursor().pixmap().size(), QSize(32, 32));
  control().surface().MousePointer(0);
  EXPECT_FALSE(widget_->testAttribute(Qt::WA_SetCursor));
}

TEST_F(QtWidgetContainerTest, TheApplicationsPointerLiesAboveAll) {
  Screen& screen = container().screen();
  screen.MousePointer(11);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  screen.MousePointer(2);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::CrossCursor);
  EXPECT_EQ(screen.MousePointer(), 2);
  screen.MousePointer(0);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  screen.MousePointer(0);
  EXPECT_EQ(screen.TwipsPerPixelX(), 15);
}

TEST_F(QtWidgetContainerTest, AToolTipIsShownAsItIs) {
  Label label(control().surface());
  label.ToolTipText(u"plain");
  EXPECT_EQ(widget_->toolTip(), QStringLiteral("plain"));
  label.ToolTipText(u"<b>bold</b>");
  QTextDocument shown;
  shown.setHtml(widget_->toolTip());
  EXPECT_EQ(shown.toPlainText(), QStringLiteral("<b>bold</b>"));
}

TEST_F(QtWidgetContainerTest, SystemColoursAreThePalettes) {
  QPalette palette;
  palette.setColor(QPalette::Button, QColor(1, 2, 3));
  palette.setColor(QPalette::Base, QColor(4, 5, 6));
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(7, 8, 9));
  widget_->setPalette(palette);
  EXPECT_EQ(container().systemColour(15), 0x030201);
  EXPECT_EQ(container().systemColour(5), 0x060504);
  EXPECT_EQ(container().systemColour(17), 0x090807);
  EXPECT_EQ(container().systemColour(31), 0);
  EXPECT_EQ(container().systemColour(-1), 0);
}

TEST_F(QtWidgetContainerTest, ALabelIsDrawnInItsPlaceWithItsColours) {
  show();
  Label label(control().surface());
  label.BackColor(0x0000FF);
  label.ForeColor(0xFF0000);
  label.Caption(u"\u2588\u2588");
  label.Move(10, 5, 20, 15);
  const QImage shown = seenOn(*widget_);
  EXPECT_EQ(shown.pixelColor(29, 19), QColor(255, 0, 0));
  EXPECT_NE(shown.pixelColor(30, 19), QColor(255, 0, 0));
  EXPECT_NE(shown.pixelColor(9, 5), QColor(255, 0, 0));
  bool isBlue = false;
  for (int y = 5; y < 20; ++y) {
    for (int x = 10; x < 30; ++x) isBlue = isBlue || shown.pixelColor(x, y) == QColor(0, 0, 255);
  }
  EXPECT_TRUE(isBlue);
}

TEST_F(QtWidgetContainerTest, APressOnALabelIsTheLabels) {
  show();
  Label label(control().surface());
  label.Move(0, 0, 40, 30);
  int presses = 0;
  label.onMouseDown = [&](auto...) { ++presses; };
  stage_.move({4, 4});
  control().events.clear();
  stage_.press();
  EXPECT_EQ(presses, 1);
  EXPECT_TRUE(control().events.empty());
}

TEST_F(QtWidgetContainerTest, AHiddenWidgetHasLostTheMouse) {
  show();
  stage_.move({4, 4});
  stage_.press();
  EXPECT_TRUE(widget_->isPressHeld());
  widget_->hide();
  EXPECT_FALSE(widget_->isPressHeld());
}

TEST_F(QtWidgetContainerTest, AControlThatOutlivesItsWidgetHasNobodyToTell) {
  show();
  const auto kept = widget_->control;
  delete widget_;
  kept->surface().Refresh();
  kept->surface().Width(900);
  kept->surface().MousePointer(2);
  kept->surface().PropertyChanged(u"Size");
  EXPECT_EQ(kept->surface().Width(), 0);
}

}  // namespace
}  // namespace tessaly::tests
