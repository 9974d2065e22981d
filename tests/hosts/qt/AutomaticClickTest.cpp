// A held button that clicks again and again, by the timers of the form that Qt drives.

#include <QEventLoop>

#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

using Intervals = std::vector<int>;

class QtAutomaticClickTest : public ButtonOnStage {
 protected:
  static constexpr int kFirst = 300;
  static constexpr int kLater = 70;

  /// Without a border, so that no other timer runs.
  QtAutomaticClickTest() {
    button().withBorder(0);
    button().automaticClick(true);
    button().automaticClickFirstTiming(kFirst);
    button().automaticClickTiming(kLater);
    stage_.move(Stage::kInside);
    takeEvents();
  }
};

TEST_F(QtAutomaticClickTest, ThePressClicksAndTheReleaseDoesNot) {
  stage_.press();
  EXPECT_EQ(takeEvents(), Events{"OnButtonClick"});
  EXPECT_EQ(timers(), Intervals{kFirst});
  stage_.release();
  EXPECT_EQ(takeEvents(), Events{});
  EXPECT_EQ(timers(), Intervals{});
}

TEST_F(QtAutomaticClickTest, AHeldButtonClicksAfterTheFirstTimeAndThenAfterEachLaterOne) {
  stage_.press();
  tick(button(), kFirst);
  EXPECT_EQ(timers(), Intervals{kLater});
  tick(button(), kLater);
  tick(button(), kLater);
  EXPECT_EQ(takeEvents(), (Events{"OnButtonClick", "OnButtonClick", "OnButtonClick", "OnButtonClick"}));
}

TEST_F(QtAutomaticClickTest, ItClicksOnWithThePointerOffIt) {
  stage_.press();
  stage_.move(Stage::kOutside);
  takeEvents();
  tick(button(), kFirst);
  EXPECT_EQ(takeEvents(), Events{"OnButtonClick"});
}

TEST_F(QtAutomaticClickTest, AFirstTimeOfNothingMeansOneClick) {
  button().automaticClickFirstTiming(0);
  stage_.press();
  EXPECT_EQ(takeEvents(), Events{"OnButtonClick"});
  EXPECT_EQ(timers(), Intervals{});
}

TEST_F(QtAutomaticClickTest, ALaterTimeOfNothingMeansOneMoreClick) {
  button().automaticClickTiming(0);
  stage_.press();
  tick(button(), kFirst);
  EXPECT_EQ(takeEvents(), (Events{"OnButtonClick", "OnButtonClick"}));
  EXPECT_EQ(timers(), Intervals{});
}

TEST_F(QtAutomaticClickTest, ATimeThatNoTimerTakesIsAnErrorOfThePress) {
  button().automaticClickFirstTiming(65536);
  stage_.press();
  EXPECT_EQ(errors_, std::vector<Long>{RuntimeError::InvalidPropertyValue});
  EXPECT_EQ(takeEvents(), Events{"OnButtonClick"});
  EXPECT_EQ(timers(), Intervals{});
}

TEST_F(QtAutomaticClickTest, WhileItsHandlerRunsTheTimerDoesNot) {
  std::vector<Intervals> during;
  QObject::connect(&button(), &qt::PictureButton::OnButtonClick, [&] { during.push_back(timers()); });
  stage_.press();
  tick(button(), kFirst);
  EXPECT_EQ(during, (std::vector<Intervals>{{}, {}}));
  EXPECT_EQ(timers(), Intervals{kLater});
}

TEST_F(QtAutomaticClickTest, DisabledInsideItsHandlerItEndsWithTheNextTick) {
  stage_.press();
  QObject::connect(&button(), &qt::PictureButton::OnButtonClick, [this] { button().enabled(false); });
  tick(button(), kFirst);
  takeEvents();
  tick(button(), kLater);
  EXPECT_EQ(takeEvents(), Events{});
  EXPECT_EQ(timers(), Intervals{});
}

// The one test that lets real time pass, as much as it takes.
TEST_F(QtAutomaticClickTest, QtsOwnTimeDrivesIt) {
  button().automaticClickFirstTiming(1);
  button().automaticClickTiming(1);
  QEventLoop loop;
  int clicks = 0;
  QObject::connect(&button(), &qt::PictureButton::OnButtonClick, [&] {
    if (++clicks == 4) loop.quit();
  });
  stage_.press();
  loop.exec();
  EXPECT_EQ(clicks, 4);
}

}  // namespace
}  // namespace tessaly::tests
