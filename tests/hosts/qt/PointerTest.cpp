// A platform that tells nobody where the pointer is outside of its windows: there the widget's own events
// count.

#include <QCoreApplication>

#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

class QtPointerTest : public ButtonOnStage {
 protected:
  void leave() {
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(&button(), &event);
  }
};

TEST_F(QtPointerTest, WhereThePlatformTellsALeaveEventMeansNothing) {
  EXPECT_TRUE(button().isPointerAsked());
  stage_.move(Stage::kInside);
  leave();
  tick(button(), kPoll);
  EXPECT_EQ(border(), "raised");
}

TEST_F(QtPointerTest, WhereItDoesNotThePointerIsOutsideAfterALeaveEvent) {
  button().setPointerAsked(false);
  stage_.move(Stage::kInside);
  tick(button(), kPoll);
  EXPECT_EQ(border(), "raised");
  leave();
  tick(button(), kPoll);
  EXPECT_EQ(border(), "hidden");
  EXPECT_TRUE(timers().empty());
}

TEST_F(QtPointerTest, ThereAReleaseIsWhereItsEventSays) {
  button().setPointerAsked(false);
  stage_.move(Stage::kInside);
  stage_.press();
  stage_.move(Stage::kOutside);
  tick(button(), kPoll);
  EXPECT_EQ(border(), "sunken");
  stage_.move(Stage::kInside);
  stage_.release();
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick"}));
}

TEST_F(QtPointerTest, ThereAReleaseOutsideIsNoClick) {
  button().setPointerAsked(false);
  stage_.move(Stage::kInside);
  stage_.press();
  stage_.move(Stage::kOutside);
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{"OnButtonSelected"});
  EXPECT_EQ(border(), "hidden");
}

TEST_F(QtPointerTest, ThereThePointerIsOutsideUntilItCame) {
  button().setPointerAsked(false);
  button().press();
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick"}));
  tick(button(), kPoll);
  EXPECT_EQ(border(), "hidden");
}

}  // namespace
}  // namespace tessaly::tests
