// What the viewer of help is told, on the platform's own viewer and on the stand-in.

#include <gtest/gtest.h>

#include "tessaly/base/Text.h"
#include "tests/dialogs/HelpFixture.h"

namespace tessaly::tests {
namespace {

using platform::WindowHandle;
using platform::fake::HtmlHelp;

constexpr Long kTopic = 0;
constexpr Long kContents = 1;
constexpr Long kIndex = 2;
constexpr Long kMapNumber = 15;
constexpr Long kCloseAll = 18;

const std::string kFile = "C:\\P\\Tessaly.chm";

using Calls = std::vector<HelpCall>;

class HelpTest : public testing::TestWithParam<Body> {
 protected:
  HelpTest() { folder_.tell(u"C:\\P"); }

  void SetUp() override {
    if (viewer() == nullptr) GTEST_SKIP() << "nothing shows help here";
  }

  RecordingViewer* viewer() { return world_.viewer(); }

 private:
  LibraryFolder folder_;
  HelpWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Bodies, HelpTest, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(HelpTest, OpensAPageOfTheFile) {
  CHelp().ShowTopic(0, u"Overview", u"", False, False);
  EXPECT_EQ(viewer()->shown(), (Calls{{0, kFile + "::/Overview.html", kTopic, 0}}));
}

TEST_P(HelpTest, OpensAPageForTheWindowThatAsks) {
  const WindowHandle window = viewer()->window();
  CHelp().ShowTopic(window, u"Overview", u"", False, False);
  EXPECT_EQ(viewer()->shown(), (Calls{{window, kFile + "::/Overview.html", kTopic, 0}}));
}

TEST_P(HelpTest, NamesAPlaceInThePageOnlyWhereOneIsTold) {
  CHelp().ShowTopic(0, u"Overview", u"a", False, False);
  CHelp().ShowTopic(0, u"Overview", u"", False, False);
  EXPECT_EQ(viewer()->shown(), (Calls{{0, kFile + "::/Overview.html#a", kTopic, 0},
                                      {0, kFile + "::/Overview.html", kTopic, 0}}));
}

TEST_P(HelpTest, OpensAPageWithoutAName) {
  CHelp().ShowTopic(0, u"", u"", False, False);
  CHelp().ShowTopic(0, u"", u"a", False, False);
  EXPECT_EQ(viewer()->shown(),
            (Calls{{0, kFile + "::/.html", kTopic, 0}, {0, kFile + "::/.html#a", kTopic, 0}}));
}

TEST_P(HelpTest, ShowsTheContentsForAnyTrueValue) {
  for (const Boolean contents : {True, Boolean(1), Boolean(-2), Boolean(256)})
    CHelp().ShowTopic(0, u"x", u"", contents, False);
  EXPECT_EQ(viewer()->shown(), Calls(4, {0, kFile + "::/x.html", kContents, 0}));
}

TEST_P(HelpTest, OpensAMapNumberWithoutAnOwner) {
  CHelp help;
  for (const Long number : {0, 1, 2147483647, -1}) help.ShowTopicByMap(viewer()->window(), number);
  EXPECT_EQ(viewer()->shown(), (Calls{{0, kFile, kMapNumber, 0},
                                      {0, kFile, kMapNumber, 1},
                                      {0, kFile, kMapNumber, 2147483647},
                                      {0, kFile, kMapNumber, -1}}));
}

TEST_P(HelpTest, OpensTheIndex) {
  const WindowHandle window = viewer()->window();
  CHelp().DisplayIndex(window);
  EXPECT_EQ(viewer()->shown(), (Calls{{window, kFile, kIndex, 0}}));
}

TEST_P(HelpTest, ClosesAllWindows) {
  CHelp().CloseHelp();
  EXPECT_EQ(viewer()->shown(), (Calls{{0, "0", kCloseAll, 0}}));
}

TEST_P(HelpTest, PutsTheViewerOnTopWhereThatIsAskedFor) {
  const WindowHandle window = viewer()->window();
  viewer()->answer(window);
  CHelp().ShowTopic(0, u"Overview", u"", False, False);
  EXPECT_FALSE(viewer()->isTopMost(window));
  CHelp().ShowTopic(0, u"Overview", u"", False, True);
  EXPECT_TRUE(viewer()->isTopMost(window));
}

TEST_P(HelpTest, HandsOnNamesOfAnyKind) {
  CHelp help;
  Calls expected;
  for (const char* const name : {"two words", "\"quoted\"", "'quoted'", "100%", "%20%PATH%", "a#b#c", "..",
                                 "../../other", "a\\b", "::/", "a.html", "<x>&|;$(y)`z`", "?"}) {
    help.ShowTopic(0, fromUtf8(name), fromUtf8(name), False, False);
    expected.push_back({0, kFile + "::/" + name + ".html#" + name, kTopic, 0});
  }
  EXPECT_EQ(viewer()->shown(), expected);
}

TEST_P(HelpTest, HandsOnALongName) {
  const String name(30000, u'x');
  CHelp().ShowTopic(0, name, name, False, False);
  const std::string shown(30000, 'x');
  EXPECT_EQ(viewer()->shown(), (Calls{{0, kFile + "::/" + shown + ".html#" + shown, kTopic, 0}}));
}

TEST_P(HelpTest, HandsOnOtherScriptsInTheSystemsCodePage) {
  CHelp().ShowTopic(0, u"Caf\u00E9", u"\u65E5\u672C", False, False);
  platform::fake::Locale russian(1049, u",", 1251);
  const platform::Override inForce(russian);
  CHelp().ShowTopic(0, u"\u0416\u0443\u043A", u"\u65E5", False, False);
  EXPECT_EQ(viewer()->shown(), (Calls{{0, kFile + "::/Caf\xE9.html#??", kTopic, 0},
                                      {0, kFile + "::/\xC6\xF3\xEA.html#?", kTopic, 0}}));
}

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
