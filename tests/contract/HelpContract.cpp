// What a body of the area HtmlHelp must do, whichever it is.

#include <gtest/gtest.h>

#include <string>

#include "tests/contract/HelpWorld.h"

namespace tessaly::tests {
namespace {

using namespace platform;

constexpr std::uint32_t kOnTop = kKeepSize | kKeepPosition | kNoRedraw;

HtmlHelp& helpInForce() { return *desktop().htmlHelp; }

WindowHandle askForHelp(const HelpCall& call) {
  return helpInForce().HtmlHelpA(call.owner, call.file.c_str(), call.command, call.data);
}

class HelpShown : public testing::TestWithParam<Body> {
 protected:
  RecordingViewer* viewer() { return world_.viewer(); }

 private:
  HelpWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Bodies, HelpShown, testing::ValuesIn(RecordingViewer::bodies()),
                         testing::PrintToStringParamName());

TEST_P(HelpShown, IsAllThatTheViewerIsTold) {
  const std::vector<HelpCall> calls = {
      {0, "a.chm::/Overview.html", help_command::kDisplayTopic, 0},
      {0, "a.chm::/Overview.html#a", help_command::kDisplayContents, 0},
      {viewer()->window(), "a.chm", help_command::kDisplayIndex, 0},
      {0, "a.chm", help_command::kShowMapNumber, 2147483647},
      {0, "a.chm", help_command::kShowMapNumber, -7},
      {0, "0", help_command::kCloseAll, 0},
      {0, "C:\\a b\\%41\\..\\\"q\"'\xE9\xA4.chm::/#?&|<>.html", help_command::kDisplayTopic, 0},
      {0, "", help_command::kDisplayTopic, 0}};
  for (const HelpCall& call : calls) {
    askForHelp(call);
    EXPECT_EQ(viewer()->shown().back(), call);
  }
}

TEST_P(HelpShown, TakesALongText) {
  const std::string file(30000, 'x');
  askForHelp({0, file, help_command::kDisplayTopic, 0});
  const std::string shown = viewer()->shown().back().file;
  if (GetParam() != Body::Toolkit) {
    EXPECT_EQ(shown, file);
  } else {
    EXPECT_EQ(shown, file.substr(0, shown.size()));
    EXPECT_GE(shown.size(), 1000U);
  }
}

TEST_P(HelpShown, HasTheWindowThatTheViewerGives) {
  if (!viewer()->answer(0x10002)) GTEST_SKIP() << "this viewer has a window of its own";
  for (const WindowHandle window : {WindowHandle{0x10002}, WindowHandle{-2}, WindowHandle{0}}) {
    viewer()->answer(window);
    EXPECT_EQ(askForHelp({0, "a.chm", help_command::kDisplayTopic, 0}), window);
  }
}

TEST_P(HelpShown, HasOneWindowForAllThatIsShown) {
  if (GetParam() == Body::Own) GTEST_SKIP() << "this viewer has the window that a test gives it";
  const WindowHandle window = askForHelp({0, "a.chm::/Overview.html", help_command::kDisplayTopic, 0});
  EXPECT_NE(window, 0);
  EXPECT_EQ(askForHelp({0, "a.chm::/Overview.html", help_command::kDisplayContents, 0}), window);
  EXPECT_EQ(askForHelp({viewer()->window(), "a.chm", help_command::kDisplayIndex, 0}), window);
  EXPECT_EQ(askForHelp({0, "a.chm", help_command::kShowMapNumber, 7}), window);
}

TEST_P(HelpShown, MayStandBeforeAllOtherWindows) {
  viewer()->answer(viewer()->window());
  const WindowHandle window = askForHelp({0, "a.chm", help_command::kDisplayTopic, 0});
  EXPECT_FALSE(viewer()->isOnTop());
  EXPECT_TRUE(helpInForce().SetWindowPos(window, kTopMost, 0, 0, 0, 0, kOnTop));
  EXPECT_TRUE(viewer()->isOnTop());
}

TEST(HelpNotShown, IsSilent) {
  HelpWorld world(Body::Own);
  if (world.viewer() != nullptr) GTEST_SKIP() << "help is shown here";
  EXPECT_EQ(helpInForce().HtmlHelpA(1, "a.chm::/Overview.html", help_command::kDisplayTopic, 0), 0);
  EXPECT_EQ(helpInForce().HtmlHelpA(0, "0", help_command::kCloseAll, 0), 0);
  EXPECT_FALSE(helpInForce().SetWindowPos(1, kTopMost, 0, 0, 0, 0, kOnTop));
}

}  // namespace

}  // namespace tessaly::tests
