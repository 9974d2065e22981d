// What the viewer of help is told, on the platform's own viewer, the stand-in and a toolkit's.

#include <gtest/gtest.h>

#include "tessaly/base/Text.h"
#include "tests/dialogs/HelpFixture.h"

namespace tessaly::tests {
namespace {

using platform::WindowHandle;
constexpr Long kTopic = 0;
constexpr Long kContents = 1;
constexpr Long kIndex = 2;
constexpr Long kMapNumber = 15;
constexpr Long kCloseAll = 18;

const std::string kFile = "C:\\P\\Tessaly.chm";

class HelpTest : public testing::TestWithParam<Body> {
 protected:
  HelpTest() { folder_.tell(u"C:\\P"); }

  RecordingViewer* viewer() { return world_.viewer(); }
  HelpCall latest() { return viewer()->shown().back(); }

  /// What arrives as a topic and as an anchor.
  HelpCall shownFor(std::u16string_view topic, std::u16string_view anchor) {
    CHelp().ShowTopic(0, topic, anchor, False, False);
    return latest();
  }

 private:
  LibraryFolder folder_;
  HelpWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Bodies, HelpTest, testing::ValuesIn(RecordingViewer::bodies()),
                         testing::PrintToStringParamName());

TEST_P(HelpTest, OpensAPageOfTheFile) {
  EXPECT_EQ(shownFor(u"Overview", u""), (HelpCall{0, kFile + "::/Overview.html", kTopic, 0}));
}

TEST_P(HelpTest, OpensAPageForTheWindowThatAsks) {
  const WindowHandle window = viewer()->window();
  CHelp().ShowTopic(window, u"Overview", u"", False, False);
  EXPECT_EQ(latest(), (HelpCall{window, kFile + "::/Overview.html", kTopic, 0}));
}

TEST_P(HelpTest, NamesAPlaceInThePageOnlyWhereOneIsTold) {
  EXPECT_EQ(shownFor(u"Overview", u"a"), (HelpCall{0, kFile + "::/Overview.html#a", kTopic, 0}));
  EXPECT_EQ(shownFor(u"Overview", u""), (HelpCall{0, kFile + "::/Overview.html", kTopic, 0}));
}

TEST_P(HelpTest, OpensAPageWithoutAName) {
  EXPECT_EQ(shownFor(u"", u""), (HelpCall{0, kFile + "::/.html", kTopic, 0}));
  EXPECT_EQ(shownFor(u"", u"a"), (HelpCall{0, kFile + "::/.html#a", kTopic, 0}));
}

TEST_P(HelpTest, ShowsTheContentsForAnyTrueValue) {
  for (const Boolean contents : {True, Boolean(1), Boolean(-2), Boolean(256)}) {
    CHelp().ShowTopic(0, u"x", u"", contents, False);
    EXPECT_EQ(latest(), (HelpCall{0, kFile + "::/x.html", kContents, 0}));
  }
}

TEST_P(HelpTest, OpensAMapNumberWithoutAnOwner) {
  for (const Long number : {0, 1, 2147483647, -1}) {
    CHelp().ShowTopicByMap(viewer()->window(), number);
    EXPECT_EQ(latest(), (HelpCall{0, kFile, kMapNumber, number}));
  }
}

TEST_P(HelpTest, OpensTheIndex) {
  const WindowHandle window = viewer()->window();
  CHelp().DisplayIndex(window);
  EXPECT_EQ(latest(), (HelpCall{window, kFile, kIndex, 0}));
}

TEST_P(HelpTest, ClosesAllWindows) {
  shownFor(u"Overview", u"");
  CHelp().CloseHelp();
  EXPECT_EQ(latest(), (HelpCall{0, "0", kCloseAll, 0}));
}

TEST_P(HelpTest, PutsTheViewerOnTopWhereThatIsAskedFor) {
  viewer()->answer(viewer()->window());
  CHelp().ShowTopic(0, u"Overview", u"", False, False);
  EXPECT_FALSE(viewer()->isOnTop());
  CHelp().ShowTopic(0, u"Overview", u"", False, True);
  EXPECT_TRUE(viewer()->isOnTop());
}

TEST_P(HelpTest, HandsOnNamesOfAnyKind) {
  if (GetParam() == Body::Toolkit) GTEST_SKIP() << "this viewer shows a name as it reads it";
  for (const char* const name : {"two words", "\"quoted\"", "'quoted'", "100%", "%20%PATH%", "a#b#c", "..",
                                 "../../other", "a\\b", "::/", "a.html", "<x>&|;$(y)`z`", "?"}) {
    EXPECT_EQ(shownFor(fromUtf8(name), fromUtf8(name)),
              (HelpCall{0, kFile + "::/" + name + ".html#" + name, kTopic, 0}));
  }
}

TEST_P(HelpTest, HandsOnALongName) {
  const std::string name(30000, 'x');
  const std::string whole = kFile + "::/" + name + ".html#" + name;
  const std::string shown = shownFor(String(30000, u'x'), String(30000, u'x')).file;
  EXPECT_EQ(shown, whole.substr(0, shown.size()));
  EXPECT_GE(shown.size(), GetParam() == Body::Toolkit ? 1000 : whole.size());
}

TEST_P(HelpTest, HandsOnOtherScriptsInTheSystemsCodePage) {
  EXPECT_EQ(shownFor(u"Caf\u00E9", u"\u65E5\u672C"), (HelpCall{0, kFile + "::/Caf\xE9.html#??", kTopic, 0}));
  platform::fake::Locale russian(1049, u",", 1251);
  const platform::Override inForce(russian);
  EXPECT_EQ(shownFor(u"\u0416\u0443\u043A", u"\u65E5"),
            (HelpCall{0, kFile + "::/\xC6\xF3\xEA.html#?", kTopic, 0}));
}

}  // namespace
}  // namespace tessaly::tests
