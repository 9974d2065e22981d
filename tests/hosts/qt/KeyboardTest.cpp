// The keyboard, where the host lets it: Tab reaches the button, and keys press it.

#include <QLineEdit>
#include <QTest>
#include <algorithm>

#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

class QtKeyboardTest : public ButtonOnStage {
 protected:
  QtKeyboardTest() { EXPECT_TRUE(QTest::qWaitForWindowActive(&stage_.window())); }

  bool runsFirstAutomaticTimer() const {
    constexpr int kFirstAutomaticClick = 500;
    const std::vector<int> running = timers();
    return std::count(running.begin(), running.end(), kFirstAutomaticClick) > 0;
  }

  void focus() {
    button().setFocusPolicy(Qt::TabFocus);
    button().setFocus(Qt::TabFocusReason);
  }
};

TEST_F(QtKeyboardTest, TabPassesItByAsLongAsTheHostDoesNotAllowIt) {
  EXPECT_EQ(button().focusPolicy(), Qt::NoFocus);
  QTest::keyClick(&stage_.window(), Qt::Key_Tab);
  EXPECT_FALSE(button().hasFocus());
}

TEST_F(QtKeyboardTest, TabReachesItWhereTheHostAllowsIt) {
  button().setFocusPolicy(Qt::TabFocus);
  auto* const before = new QLineEdit(&stage_.window());
  before->show();
  before->setFocus();
  QTest::keyClick(before, Qt::Key_Tab);
  EXPECT_TRUE(button().hasFocus());
}

TEST_F(QtKeyboardTest, WhetherItHasTheKeyboardIsSeen) {
  const QImage before = seenOn(button());
  focus();
  EXPECT_NE(seenOn(button()), before);
  button().clearFocus();
  EXPECT_EQ(seenOn(button()), before);
}

TEST_F(QtKeyboardTest, TheSpaceBarPressesAndReleasesAsTheMouseDoes) {
  focus();
  listenToTheMouse();
  QTest::keyPress(&button(), Qt::Key_Space);
  EXPECT_EQ(takeEvents(), (Events{"MouseMove 0 0 24,20", "OnButtonSelected", "MouseDown 1 0 24,20"}));
  EXPECT_TRUE(button().isPressHeld());
  tick(button(), kPoll);
  QTest::keyRelease(&button(), Qt::Key_Space);
  EXPECT_EQ(takeEvents(), (Events{"MouseUp 1 0 24,20", "OnButtonClick"}));
  tick(button(), kPoll);
  EXPECT_TRUE(timers().empty());
}

TEST_F(QtKeyboardTest, ReturnAndEnterClickAtOnce) {
  focus();
  QTest::keyClick(&button(), Qt::Key_Return);
  QTest::keyClick(&button(), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick", "OnButtonClick"}));
}

TEST_F(QtKeyboardTest, AHeldSpaceBarClicksAutomatically) {
  button().automaticClick(true);
  focus();
  QTest::keyPress(&button(), Qt::Key_Space);
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
  QCoreApplication::sendEvent(&button(), &again);
  tick(button(), 500);
  QTest::keyRelease(&button(), Qt::Key_Space);
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick", "OnButtonClick"}));
}

TEST_F(QtKeyboardTest, FocusThatGoesTakesAHeldPressBack) {
  focus();
  QTest::keyPress(&button(), Qt::Key_Space);
  button().clearFocus();
  QTest::keyRelease(&button(), Qt::Key_Space);
  EXPECT_EQ(takeEvents(), Events{"OnButtonSelected"});
  EXPECT_FALSE(button().isPressHeld());
}

// The focus went to the dialog while the press was still raised, and the automatic clicks went on behind it.
TEST_F(QtKeyboardTest, ADialogInTheClickOfTheKeysPressEndsThePress) {
  button().automaticClick(true);
  focus();
  QObject::connect(&button(), &qt::PictureButton::OnButtonClick, [this] { button().clearFocus(); });
  QTest::keyPress(&button(), Qt::Key_Space);
  EXPECT_FALSE(button().isPressHeld());
  EXPECT_FALSE(runsFirstAutomaticTimer());
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick"}));
}

// The timer's own click had shown the dialog, and the timer began anew behind the release.
TEST_F(QtKeyboardTest, ADialogInARepeatedClickOfTheKeyEndsThePress) {
  button().automaticClick(true);
  focus();
  QTest::keyPress(&button(), Qt::Key_Space);
  QObject::connect(&button(), &qt::PictureButton::OnButtonClick, [this] { button().clearFocus(); });
  tick(button(), 500);
  EXPECT_FALSE(button().isPressHeld());
  EXPECT_FALSE(runsFirstAutomaticTimer());
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick", "OnButtonClick"}));
}

TEST_F(QtKeyboardTest, ADialogThatOpensTakesAHeldPressBack) {
  listenToTheMouse();
  for (const bool isAutomatic : {false, true}) {
    button().automaticClick(isAutomatic);
    focus();
    QTest::keyPress(&button(), Qt::Key_Space);
    takeEvents();
    QEvent blocked(QEvent::WindowBlocked);
    QCoreApplication::sendEvent(&button(), &blocked);
    EXPECT_FALSE(button().isPressHeld());
    QTest::keyRelease(&button(), Qt::Key_Space);
    settle();
    EXPECT_EQ(takeEvents(), Events{"MouseUp 1 0 -1,-1"});
    EXPECT_FALSE(runsFirstAutomaticTimer());
  }
}

TEST_F(QtKeyboardTest, AKeyWithModifiersIsSomebodyElses) {
  focus();
  QTest::keyClick(&button(), Qt::Key_Space, Qt::ControlModifier);
  QTest::keyClick(&button(), Qt::Key_A);
  EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(QtKeyboardTest, WhileTheMouseHoldsItKeysDoNothing) {
  focus();
  stage_.move(Stage::kInside);
  stage_.press();
  takeEvents();
  QTest::keyClick(&button(), Qt::Key_Space);
  EXPECT_EQ(takeEvents(), Events{});
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{"OnButtonClick"});
}

TEST_F(QtKeyboardTest, DisabledItIsNotPressed) {
  button().enabled(false);
  focus();
  QTest::keyClick(&button(), Qt::Key_Return);
  EXPECT_EQ(takeEvents(), Events{});
}

}  // namespace
}  // namespace tessaly::tests
