// A host may delete the widget, or close its window, in any event. Nothing may be touched then that is gone,
// which the address sanitizer tells.

#include <QApplication>
#include <QTest>

#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

using qt::PictureButton;

class QtWidgetsThatGoTest : public ButtonOnStage {
 protected:
  static constexpr QPoint kInside = Stage::kInside;

  template <class Signal>
  void deleteIn(Signal signal) {
    QObject::connect(&button(), signal, [this] { delete button_.data(); });
  }

  void click() {
    stage_.press();
    stage_.release();
  }

  void expectGone() { EXPECT_TRUE(button_.isNull()); }
};

TEST_F(QtWidgetsThatGoTest, InAClick) {
  deleteIn(&PictureButton::OnButtonClick);
  stage_.move(kInside);
  click();
  expectGone();
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick"}));
}

TEST_F(QtWidgetsThatGoTest, InTheClickOfAPress) {
  button().automaticClick(true);
  deleteIn(&PictureButton::OnButtonClick);
  stage_.move(kInside);
  stage_.press();
  expectGone();
  stage_.release();
}

TEST_F(QtWidgetsThatGoTest, InTheClickOfATimer) {
  button().automaticClick(true);
  stage_.move(kInside);
  stage_.press();
  deleteIn(&PictureButton::OnButtonClick);
  tick(button(), 500);
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, WhenItIsSelected) {
  deleteIn(&PictureButton::OnButtonSelected);
  stage_.move(kInside);
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, WhenThePointerHasRested) {
  deleteIn(&PictureButton::OnButtonSelectedTiming);
  stage_.move(kInside);
  tick(button(), kRest);
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, InAMove) {
  deleteIn(&PictureButton::MouseMove);
  stage_.move(kInside);
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, InAPress) {
  deleteIn(&PictureButton::MouseDown);
  stage_.move(kInside);
  stage_.press();
  expectGone();
  stage_.release();
}

TEST_F(QtWidgetsThatGoTest, InARelease) {
  deleteIn(&PictureButton::MouseUp);
  stage_.move(kInside);
  click();
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, InAKeysPress) {
  button().setFocusPolicy(Qt::TabFocus);
  button().setFocus();
  deleteIn(&PictureButton::MouseDown);
  QTest::keyPress(&button(), Qt::Key_Space);
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, InTheClickOfReturn) {
  button().setFocusPolicy(Qt::TabFocus);
  button().setFocus();
  deleteIn(&PictureButton::OnButtonSelected);
  QTest::keyClick(&button(), Qt::Key_Return);
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, WhenAPropertyHasChanged) {
  deleteIn(&PictureButton::PropertyChanged);
  button().enabled(false);
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, WhenQtHasAssignedAProperty) {
  deleteIn(&PictureButton::PropertyChanged);
  button().setProperty("withBorder", 3);
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, InTheErrorHandler) {
  QObject::connect(&button(), &PictureButton::OnButtonClick,
                   [] { throw RuntimeError(RuntimeError::Overflow); });
  button().setErrorHandler([this](const RuntimeError&) { delete button_.data(); });
  stage_.move(kInside);
  click();
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, WithAnErrorOnItsWayTheHandlerHearsNothing) {
  QObject::connect(&button(), &PictureButton::OnButtonClick, [this] {
    delete button_.data();
    throw RuntimeError(RuntimeError::Overflow);
  });
  stage_.move(kInside);
  click();
  expectGone();
  EXPECT_EQ(errors_, std::vector<Long>{});
}

TEST_F(QtWidgetsThatGoTest, ByDeleteLater) {
  QObject::connect(&button(), &PictureButton::OnButtonClick, &button(), &QObject::deleteLater);
  stage_.move(kInside);
  click();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, WithTheWindowThatIsClosed) {
  button().automaticClick(true);
  stage_.move(kInside);
  stage_.press();
  QObject::connect(&button(), &PictureButton::OnButtonClick, [this] { stage_.destroyWindow(); });
  tick(button(), 500);
  expectGone();
}

TEST_F(QtWidgetsThatGoTest, WhileTheMouseIsHeld) {
  stage_.move(kInside);
  stage_.press();
  delete button_.data();
  stage_.move(Stage::kOutside);
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{"OnButtonSelected"});
}

TEST_F(QtWidgetsThatGoTest, AHostsOwnHandlerOfAControlThatIsHeldOnIsCalledNoMore) {
  int selected = 0;
  button().control().events.OnButtonSelected = [&] { ++selected; };
  deleteIn(&PictureButton::MouseMove);
  stage_.move(kInside);
  expectGone();
  EXPECT_EQ(selected, 0);
}

}  // namespace
}  // namespace tessaly::tests
