// What a mouse event and a tick tell timers and lines, step by step, and what a failing step leaves undone.

#include <gtest/gtest.h>

#include "tests/controls/RecordingStage.h"

namespace tessaly::tests {
namespace {

class InputOrderTest : public testing::Test {
 protected:
  InputOrderTest() { control_.withBorder(1); }

  Calls shown(bool visible, const std::string& first, const std::string& second) {
    Calls calls;
    for (int line = 0; line < 4; ++line) {
      const std::string name = "Line1(" + std::to_string(line) + ").";
      calls.push_back(name + "BorderWidth = 1");
      calls.push_back(name + (visible ? "Visible = True" : "Visible = False"));
    }
    if (!visible) return calls;
    for (int line = 0; line < 4; ++line) {
      calls.push_back("Line1(" + std::to_string(line) + ").BorderColor = &H" +
                      (line % 2 == 0 ? first : second));
    }
    return calls;
  }
  Calls raised() { return shown(true, "1E1E1E", "0"); }
  Calls hidden() { return shown(false, "", ""); }

  template <class Operation>
  Calls callsOf(const Operation& operation) {
    return stage_.callsOf(operation);
  }
  Calls moved(PixelPoint point) {
    return callsOf([&] { stage_.form().movePointer(point); });
  }

  RecordingStage stage_;
  transparentBitmap& control_ = stage_.add();
};

const Calls kRestart{"Timer2.Enabled = False", "Timer2.Interval = 1000", "Timer2.Enabled = True"};

TEST_F(InputOrderTest, AHoverShowsTheBorderPollsTellsAndCounts) {
  control_.events.OnButtonSelected = [this] { stage_.log().note("OnButtonSelected"); };
  control_.events.MouseMove = [this](std::int16_t&, std::int16_t&, float&, float&) {
    stage_.log().note("MouseMove");
  };
  EXPECT_EQ(moved({5, 5}), joined({{"MouseMove"},
                                   raised(),
                                   {"Timer1.Interval = 50", "Timer1.Enabled = True", "OnButtonSelected"},
                                   kRestart}));
  EXPECT_EQ(moved({6, 6}), joined({{"MouseMove"}, kRestart}));
}

TEST_F(InputOrderTest, APollThatFindsThePointerGoneStopsTheRestHidesTheBorderAndThenItself) {
  moved({5, 5});
  moved({500, 500});
  EXPECT_EQ(
      callsOf([this] { stage_.form().advance(50); }),
      joined({{"UserControl.ScaleWidth", "Timer2.Enabled = False"}, hidden(), {"Timer1.Enabled = False"}}));
}

TEST_F(InputOrderTest, APollSkipsWhatFails) {
  moved({5, 5});
  moved({500, 500});
  stage_.log().fail("Timer2.Enabled = False", RuntimeError::OutOfMemory);
  EXPECT_EQ(
      callsOf([this] { stage_.form().advance(50); }),
      joined({{"UserControl.ScaleWidth", "Timer2.Enabled = False"}, hidden(), {"Timer1.Enabled = False"}}));
}

TEST_F(InputOrderTest, APollWhoseBorderFailsStillStopsItself) {
  moved({5, 5});
  moved({500, 500});
  stage_.log().fail("Line1(0).BorderWidth = 1", RuntimeError::OutOfMemory);
  EXPECT_EQ(callsOf([this] { stage_.form().advance(50); }),
            (Calls{"UserControl.ScaleWidth", "Timer2.Enabled = False", "Line1(0).BorderWidth = 1",
                   "Timer1.Enabled = False"}));
  EXPECT_TRUE(stage_.form().errors().empty());
}

TEST_F(InputOrderTest, APollThatCannotMeasureKeepsTheHover) {
  moved({5, 5});
  moved({500, 500});
  stage_.log().fail("UserControl.ScaleWidth", RuntimeError::OutOfMemory);
  EXPECT_EQ(callsOf([this] { stage_.form().advance(50); }), Calls{"UserControl.ScaleWidth"});
  EXPECT_EQ(transparentBitmapPeer::isHovered(control_), True);
}

TEST_F(InputOrderTest, ARestWhoseTimerFailsIsToldAllTheSame) {
  int rests = 0;
  control_.events.OnButtonSelectedTiming = [&] { ++rests; };
  moved({5, 5});
  stage_.log().fail("Timer2.Enabled = False", RuntimeError::OutOfMemory);
  stage_.form().advance(1000);
  EXPECT_EQ(rests, 1);
  EXPECT_EQ(transparentBitmapPeer::selectedRaised(control_), True);
}

TEST_F(InputOrderTest, NeitherMovesNorPressesNorTicksCompose) {
  control_.automaticClick(True);
  const Calls calls = callsOf([this] {
    stage_.form().movePointer({5, 5});
    stage_.form().press();
    stage_.form().advance(2000);
    stage_.form().release();
  });
  for (const std::string& call : calls) {
    EXPECT_EQ(call.find("Picture"), std::string::npos) << call;
    EXPECT_EQ(call.find("Cls"), std::string::npos) << call;
  }
}

TEST_F(InputOrderTest, ARepetitionCountsFromWhereTheHostReturned) {
  control_.automaticClick(True);
  moved({5, 5});
  stage_.form().press();
  control_.events.OnButtonClick = [this] { stage_.log().note("OnButtonClick"); };
  EXPECT_EQ(callsOf([this] { transparentBitmapPeer::timerAutoClickTick(control_); }),
            (Calls{"OnButtonClick", "timerAutoClick.Enabled = False", "timerAutoClick.Interval = 500",
                   "timerAutoClick.Enabled = True"}));
}

TEST_F(InputOrderTest, APressShowsTheBorderClicksAndThenBeginsToRepeat) {
  control_.automaticClick(True);
  control_.automaticClickFirstTiming(7);
  control_.events.OnButtonClick = [this] { stage_.log().note("OnButtonClick"); };
  moved({5, 5});
  EXPECT_EQ(callsOf([this] { stage_.form().press(); }),
            joined({shown(true, "0", "1E1E1E"),
                    {"OnButtonClick", "timerAutoClick.Interval = 7", "timerAutoClick.Enabled = True"}}));
}

}  // namespace
}  // namespace tessaly::tests
