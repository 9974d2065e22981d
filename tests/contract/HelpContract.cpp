// What a body of the area HtmlHelp must do, whichever it is.

#include <gtest/gtest.h>

#include <string>

#include "tests/contract/HelpWorld.h"

namespace tessaly::tests {
namespace {

using namespace platform;

constexpr std::uint32_t kOnTop = kKeepSize | kKeepPosition | kNoRedraw;

class HelpContract : public testing::TestWithParam<Body> {
 protected:
  static HtmlHelp& help() { return *desktop().htmlHelp; }

  HelpWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Bodies, HelpContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(HelpContract, HandsAllThatItIsToldToTheViewer) {
  if (world_.viewer() == nullptr) GTEST_SKIP() << "nothing shows help here";
  const std::vector<HelpCall> calls = {
      {0, "a.chm::/Overview.html", help_command::kDisplayTopic, 0},
      {0, "a.chm::/Overview.html#a", help_command::kDisplayContents, 0},
      {world_.viewer()->window(), "a.chm", help_command::kDisplayIndex, 0},
      {0, "a.chm", help_command::kShowMapNumber, 2147483647},
      {0, "a.chm", help_command::kShowMapNumber, -7},
      {0, "0", help_command::kCloseAll, 0},
      {0, "C:\\a b\\%41\\..\\\"q\"'\xE9\xA4.chm::/#?&|<>.html", help_command::kDisplayTopic, 0},
      {0, std::string(30000, 'x'), help_command::kDisplayTopic, 0},
      {0, "", help_command::kDisplayTopic, 0}};
  for (const HelpCall& call : calls) help().HtmlHelpA(call.owner, call.file.c_str(), call.command, call.data);
  EXPECT_EQ(world_.viewer()->shown(), calls);
}

TEST_P(HelpContract, GivesTheViewersWindow) {
  if (world_.viewer() == nullptr) GTEST_SKIP() << "nothing shows help here";
  for (const WindowHandle window : {WindowHandle{0x10002}, WindowHandle{-2}, WindowHandle{0}}) {
    world_.viewer()->answer(window);
    EXPECT_EQ(help().HtmlHelpA(0, "a.chm", help_command::kDisplayTopic, 0), window);
  }
}

TEST_P(HelpContract, PutsAWindowBeforeTheOthers) {
  if (world_.viewer() == nullptr) GTEST_SKIP() << "nothing shows help here";
  const WindowHandle window = world_.viewer()->window();
  EXPECT_FALSE(world_.viewer()->isTopMost(window));
  EXPECT_TRUE(help().SetWindowPos(window, kTopMost, 0, 0, 0, 0, kOnTop));
  EXPECT_TRUE(world_.viewer()->isTopMost(window));
}

TEST_P(HelpContract, IsSilentWhereNothingShowsHelp) {
  if (world_.viewer() != nullptr) GTEST_SKIP() << "help is shown here";
  EXPECT_EQ(help().HtmlHelpA(1, "a.chm::/Overview.html", help_command::kDisplayTopic, 0), 0);
  EXPECT_EQ(help().HtmlHelpA(0, "0", help_command::kCloseAll, 0), 0);
  EXPECT_FALSE(help().SetWindowPos(1, kTopMost, 0, 0, 0, 0, kOnTop));
}

}  // namespace

}  // namespace tessaly::tests
