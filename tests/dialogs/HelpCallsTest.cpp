// Which calls help makes, in their order, and what it makes of their results.

#include <gtest/gtest.h>

#include "tests/dialogs/HelpFixture.h"

namespace tessaly::tests {
namespace {

using platform::WindowHandle;
using platform::fake::HtmlHelp;

/// A viewer that opens or does not, and whether its window is put on top.
bool isPutOnTop(WindowHandle window, Boolean onTop) {
  HtmlHelp viewer;
  viewer.answer(window);
  const platform::Override inForce(viewer);
  CHelp().ShowTopic(7, u"Overview", u"", False, onTop);
  const std::vector<HtmlHelp::Placed> expected(viewer.placed().size(), {window, -1, 0, 0, 0, 0, 11});
  EXPECT_EQ(viewer.placed(), expected);
  return viewer.placed().size() == 1;
}

TEST(HelpOnTop, IsAskedForWhereTheViewersNumberAndTheArgumentShareABit) {
  EXPECT_TRUE(isPutOnTop(0x10400, True));
  EXPECT_TRUE(isPutOnTop(-2, True));
  EXPECT_FALSE(isPutOnTop(0, True));
  EXPECT_FALSE(isPutOnTop(0x10400, False));
  EXPECT_FALSE(isPutOnTop(0, False));
  EXPECT_TRUE(isPutOnTop(0x10001, Boolean(1)));
  EXPECT_FALSE(isPutOnTop(0x10400, Boolean(1)));
  EXPECT_TRUE(isPutOnTop(0x10000, Boolean(-256)));
  EXPECT_FALSE(isPutOnTop(0x10000, Boolean(0x7FFF)));
  EXPECT_TRUE(isPutOnTop(WindowHandle{1} << 40, True));
}

TEST(HelpOnTop, ComesBehindThePage) {
  HtmlHelp viewer;
  const platform::Override inForce(viewer);
  CHelp().ShowTopic(0, u"Overview", u"", True, True);
  EXPECT_EQ(viewer.calls(), (std::vector<std::string>{"HtmlHelpA", "SetWindowPos"}));
}

TEST(HelpOnTop, IsNotMissedWhereItFails) {
  HtmlHelp viewer;
  viewer.failSetWindowPos();
  const platform::Override inForce(viewer);
  CHelp help;
  help.ShowTopic(0, u"Overview", u"", False, True);
  help.ShowTopic(0, u"Another", u"", False, True);
  EXPECT_EQ(viewer.shown().size(), 2U);
}

TEST(Help, IsSilentWhereTheViewerFails) {
  HtmlHelp viewer;
  viewer.answer(0);
  const platform::Override inForce(viewer);
  CHelp help;
  help.ShowTopic(1, u"Overview", u"a", True, True);
  help.ShowTopicByMap(1, 5);
  help.DisplayIndex(1);
  help.CloseHelp();
  EXPECT_EQ(viewer.calls(), std::vector<std::string>(4, "HtmlHelpA"));
}

TEST(Help, IsSilentWhereNothingShowsIt) {
  HelpWorld world(Body::Own);
  if (world.viewer() != nullptr) GTEST_SKIP() << "help is shown here";
  CHelp help;
  EXPECT_NO_THROW(help.ShowTopic(1, u"Overview", u"a", True, True));
  EXPECT_NO_THROW(help.ShowTopicByMap(1, 5));
  EXPECT_NO_THROW(help.DisplayIndex(1));
  EXPECT_NO_THROW(help.CloseHelp());
}

TEST(Help, PutsThePageAloneOnTop) {
  HtmlHelp viewer;
  viewer.answer(5);
  const platform::Override inForce(viewer);
  CHelp help;
  help.ShowTopicByMap(1, 5);
  help.DisplayIndex(1);
  help.CloseHelp();
  EXPECT_EQ(viewer.calls(), std::vector<std::string>(3, "HtmlHelpA"));
}

TEST(Help, LeavesTheViewerOpenWhereItIsLetGoOf) {
  HtmlHelp viewer;
  const platform::Override inForce(viewer);
  { CHelp().ShowTopic(0, u"Overview", u"", False, False); }
  ASSERT_EQ(viewer.shown().size(), 1U);
  EXPECT_EQ(viewer.shown().back().command, platform::help_command::kDisplayTopic);
}

TEST(Help, IsAskedForWithF1Alone) {
  const CHelp help;
  EXPECT_EQ(help.HelpKey(112, 0), True);
  for (const int shift : {1, 2, 4, 7, 8, -1, -32768})
    EXPECT_EQ(help.HelpKey(112, static_cast<std::int16_t>(shift)), False);
  for (const int code : {0, 111, 113, -112, 32767, -32768})
    EXPECT_EQ(help.HelpKey(static_cast<std::int16_t>(code), 0), False);
}

TEST(Help, ShowsNothingForAKey) {
  HtmlHelp viewer;
  const platform::Override inForce(viewer);
  CHelp().HelpKey(112, 0);
  EXPECT_TRUE(viewer.calls().empty());
}

TEST(Help, KeepsThePageOfTheHostAsItIs) {
  HtmlHelp viewer;
  const platform::Override inForce(viewer);
  const String page(u"Se\u0000 ttings \u65E5", 10);
  CHelp help;
  EXPECT_EQ(help.currentHelpPage(), u"");
  help.currentHelpPage(page);
  EXPECT_EQ(help.currentHelpPage(), page);
  help.DisplayIndex(0);
  CHelp copy = help;
  copy.currentHelpPage(u"");
  EXPECT_EQ(help.currentHelpPage(), page);
  EXPECT_EQ(copy.currentHelpPage(), u"");
}

}  // namespace
}  // namespace tessaly::tests
