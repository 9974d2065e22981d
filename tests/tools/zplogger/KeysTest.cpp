#include "tools/zplogger/Keys.h"

#include <gtest/gtest.h>

#include "tests/tools/zplogger/Stage.h"
#include "tools/zplogger/KeyDecoder.h"

namespace tessaly::zplogger {
namespace {

using Lines = std::vector<std::string>;

struct ZpKeysTest : testing::Test {
  /// False where one of the keys ends the tool.
  bool press(std::u32string_view text) {
    bool goesOn = true;
    for (const char32_t key : text) goesOn = keys.press(key) && goesOn;
    return goesOn;
  }

  View view{Filter()};
  Keys keys{view};
};

TEST_F(ZpKeysTest, PauseAndGoOn) {
  EXPECT_TRUE(press(U" "));
  EXPECT_TRUE(view.isPaused());
  EXPECT_TRUE(press(U" "));
  EXPECT_FALSE(view.isPaused());
}

TEST_F(ZpKeysTest, MoveTheLevelWithinItsBounds) {
  press(U"++");
  EXPECT_EQ(view.filter().level(), 2);
  press(U"---");
  EXPECT_EQ(view.filter().level(), 0);
  EXPECT_EQ(tests::rest(view),
            (Lines{"# shows lines of level 1 and above", "# shows lines of level 2 and above",
                   "# shows lines of level 1 and above", "# shows lines of every level",
                   "# shows lines of every level"}));
  view.setFilter(Filter(255));
  press(U"+");
  EXPECT_EQ(view.filter().level(), 255);
}

TEST_F(ZpKeysTest, AskForATextAndTakeIt) {
  press(U"+/aqq \x7F\x08\x7F");
  EXPECT_EQ(view.next().status.typed, u"a");
  press(U"é\U0001F600\x7F?\r");
  EXPECT_EQ(view.filter().text(), u"aé?");
  EXPECT_EQ(view.filter().level(), 1);
  EXPECT_FALSE(view.next().status.typed);
  press(U"/\n");
  EXPECT_EQ(view.filter().text(), u"");
}

TEST_F(ZpKeysTest, LeaveTheTextAsItWas) {
  view.setFilter(Filter(0, u"before"));
  press(U"/abc\x1B");
  EXPECT_EQ(view.filter().text(), u"before");
  EXPECT_FALSE(view.next().status.typed);
}

TEST_F(ZpKeysTest, EraseNothingFromAnEmptyTextAndAllAtOnce) {
  press(U"/\x7Fxyz\x15\x01y\r");
  EXPECT_EQ(view.filter().text(), u"y");
}

TEST_F(ZpKeysTest, TypeNoTextWithoutABound) {
  press(U"/" + std::u32string(1000, U'x') + U"\r");
  EXPECT_EQ(view.filter().text().size(), 200U);
}

TEST_F(ZpKeysTest, TellWhatTheyDo) {
  press(U"?");
  EXPECT_EQ(tests::rest(view),
            (Lines{"# keys: space pauses and goes on, + and - move the lowest level shown,",
                   "#       / asks for a text that lines must have, q ends"}));
}

TEST_F(ZpKeysTest, EndTheTool) {
  EXPECT_FALSE(press(U"q"));
  EXPECT_FALSE(press(U"Q"));
  EXPECT_TRUE(press(U"x\r\x1B"));
}

TEST(ZpKeyDecoder, MakesCharactersOfBytesThatComeApart) {
  KeyDecoder decoder;
  EXPECT_EQ(decoder.take("aé"), U"aé");
  EXPECT_EQ(decoder.take("\xF0\x9F"), U"");
  EXPECT_EQ(decoder.take("\x98\x80+"), U"\U0001F600+");
}

TEST(ZpKeyDecoder, LeavesOutWhatIsNoCharacter) {
  KeyDecoder decoder;
  EXPECT_EQ(decoder.take("\xFF\x80q\xC3"), U"q");
  EXPECT_EQ(decoder.take("x"), U"x");
}

TEST(ZpKeyDecoder, LeavesOutArrowsAndTakesEscape) {
  KeyDecoder decoder;
  EXPECT_EQ(decoder.take("\x1b[Aq\x1bOPq\x1b[15~q"), U"qqq");
  EXPECT_EQ(decoder.take("\x1b"), U"\x1B");
  EXPECT_EQ(decoder.take("\x1b[1;5"), U"");
  EXPECT_EQ(decoder.take("\x1b\x1b"), U"\x1B\x1B");
}

}  // namespace
}  // namespace tessaly::zplogger
