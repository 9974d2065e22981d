// A press that is taken away: nobody tells of its release, and it used to go on for ever. It ends as one that
// is released outside.

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMouseEvent>
#include <algorithm>

#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

using qt::PictureButton;

class QtLostMouseTest : public ButtonOnStage {
 protected:
  static constexpr int kFirst = 300;
  static constexpr int kLater = 70;

  void pressAutomatically() {
    button().automaticClick(true);
    button().automaticClickFirstTiming(kFirst);
    button().automaticClickTiming(kLater);
    stage_.move(Stage::kInside);
    stage_.press();
    listenToTheMouse();
    takeEvents();
  }

  bool repeats() const {
    const std::vector<int> running = timers();
    return std::any_of(running.begin(), running.end(), [](int i) { return i == kFirst || i == kLater; });
  }

  /// A dialog that opens and closes again.
  void passDialog() {
    QDialog dialog(&stage_.window());
    QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    dialog.exec();
  }

  void expectLost() {
    EXPECT_FALSE(button().isPressHeld());
    EXPECT_FALSE(repeats());
    EXPECT_EQ(border(), "hidden");
    EXPECT_EQ(takeEvents(), Events{"MouseUp 1 0 -1,-1"});
  }
};

TEST_F(QtLostMouseTest, ADialogEndsThePress) {
  pressAutomatically();
  passDialog();
  expectLost();
}

TEST_F(QtLostMouseTest, HidingItEndsThePress) {
  pressAutomatically();
  button().hide();
  EXPECT_FALSE(button().isPressHeld());
  EXPECT_EQ(takeEvents(), Events{});
  settle();
  button().show();
  expectLost();
}

TEST_F(QtLostMouseTest, DisablingTheWidgetEndsThePress) {
  pressAutomatically();
  button().setEnabled(false);
  settle();
  expectLost();
}

TEST_F(QtLostMouseTest, AMenuEndsThePressBeforeItClicksAgain) {
  pressAutomatically();
  QMenu menu;
  menu.addAction(QStringLiteral("Open"));
  menu.popup(QPoint(600, 400));
  tick(button(), kFirst);
  expectLost();
}

TEST_F(QtLostMouseTest, AReleaseThatWentElsewhereEndsThePressBeforeItClicksAgain) {
  pressAutomatically();
  stage_.releaseElsewhere();
  EXPECT_TRUE(button().isPressHeld());
  tick(button(), kFirst);
  expectLost();
}

TEST_F(QtLostMouseTest, AMoveWithoutAButtonEndsThePressFirst) {
  pressAutomatically();
  stage_.releaseElsewhere();
  stage_.move(Stage::kInside + QPoint(1, 1));
  EXPECT_EQ(takeEvents(), (Events{"MouseUp 1 0 -1,-1", "MouseMove 0 0 11,13", "OnButtonSelected"}));
  EXPECT_FALSE(repeats());
}

// The timer is started behind the click, so a release within the click stopped nothing.
TEST_F(QtLostMouseTest, ADialogInTheClickOfThePressLeavesNothingThatClicks) {
  const auto shown = QObject::connect(&button(), &PictureButton::OnButtonClick, [this] { passDialog(); });
  pressAutomatically();
  EXPECT_FALSE(button().isPressHeld());
  EXPECT_FALSE(repeats());
  EXPECT_EQ(border(), "hidden");
}

TEST_F(QtLostMouseTest, ADialogInARepeatedClickLeavesNothingThatClicks) {
  pressAutomatically();
  QObject::connect(&button(), &PictureButton::OnButtonClick, [this] { passDialog(); });
  tick(button(), kFirst);
  EXPECT_FALSE(repeats());
  EXPECT_EQ(takeEvents(), (Events{"OnButtonClick", "MouseUp 1 0 -1,-1"}));
}

TEST_F(QtLostMouseTest, APlainPressThatIsLostIsNoClick) {
  stage_.move(Stage::kInside);
  stage_.press();
  passDialog();
  EXPECT_EQ(takeEvents(), Events{"OnButtonSelected"});
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(QtLostMouseTest, EachButtonThatIsHeldIsReleased) {
  stage_.move(Stage::kInside);
  stage_.press(Qt::RightButton);
  stage_.press(Qt::MiddleButton);
  listenToTheMouse();
  takeEvents();
  passDialog();
  EXPECT_EQ(takeEvents(), (Events{"MouseUp 2 0 -1,-1", "MouseUp 4 0 -1,-1"}));
}

TEST_F(QtLostMouseTest, AReleaseThatComesAfterAllIsTheOnlyOne) {
  pressAutomatically();
  button().setEnabled(false);
  button().setEnabled(true);
  stage_.release();
  settle();
  EXPECT_EQ(takeEvents(), Events{"MouseUp 1 0 10,12"});
  EXPECT_FALSE(repeats());
}

TEST_F(QtLostMouseTest, ANewPressComesBehindTheLostRelease) {
  pressAutomatically();
  button().setEnabled(false);
  button().setEnabled(true);
  stage_.press();
  EXPECT_EQ(takeEvents(), (Events{"MouseUp 1 0 -1,-1", "MouseMove 0 0 10,12", "OnButtonSelected",
                                  "MouseDown 1 0 10,12", "OnButtonClick"}));
  EXPECT_TRUE(repeats());
}

// Tests of hosts make such events up.
TEST_F(QtLostMouseTest, APressThatOnlyTheWidgetHeardOfGoesOn) {
  button().automaticClick(true);
  button().automaticClickFirstTiming(kFirst);
  button().automaticClickTiming(kLater);
  const QPointF place(4, 4);
  QMouseEvent press(QEvent::MouseButtonPress, place, button().mapToGlobal(place), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&button(), &press);
  tick(button(), kFirst);
  EXPECT_EQ(takeEvents(), (Events{"OnButtonClick", "OnButtonClick"}));
}

TEST_F(QtLostMouseTest, AHostThatClosesItsWindowMeanwhileHearsNothing) {
  pressAutomatically();
  stage_.destroyWindow();
  settle();
  EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(QtLostMouseTest, TheWidgetMayGoWithTheLostRelease) {
  pressAutomatically();
  QObject::connect(&button(), &PictureButton::MouseUp, [this] { delete button_.data(); });
  stage_.releaseElsewhere();
  tick(button(), kFirst);
  EXPECT_TRUE(button_.isNull());
}

}  // namespace
}  // namespace tessaly::tests
