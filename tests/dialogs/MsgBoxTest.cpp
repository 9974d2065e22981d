// What a message box is told, on the platform's own boxes, the stand-in and a toolkit's.

#include <gtest/gtest.h>

#include "tessaly/dialogs/modMsgBoxW.h"
#include "tests/contract/BoxUser.h"
#include "tests/contract/ButtonSets.h"

namespace tessaly::tests {
namespace {

class MsgBoxTest : public testing::TestWithParam<Body> {
 protected:
  BoxUser* user() { return world_.user(); }

 private:
  BoxWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Bodies, MsgBoxTest, testing::ValuesIn(BoxUser::bodies()),
                         testing::PrintToStringParamName());

TEST_P(MsgBoxTest, GivesTheButtonOfTheUser) {
  for (const Long flags : {0x104, 0x124}) {
    for (const Long button : {6, 7}) {
      user()->press(button);
      EXPECT_EQ(MsgBoxW(u"Delete it?", flags, u""), button);
    }
  }
  user()->press(0);
  EXPECT_EQ(MsgBoxW(u"Delete it?", 0x124, u""), 7) << "the second button is the default";
  EXPECT_EQ(MsgBoxW(u"Done", 0x10, u""), 1);
}

TEST_P(MsgBoxTest, GivesEachButtonOfEachSetUnderAnyIcon) {
  for (const auto& [set, buttons] : buttonSets()) {
    for (std::size_t i = 0; i < buttons.size(); ++i) {
      const Long flags = set | kIcons[i];
      user()->press(buttons[i]);
      EXPECT_EQ(MsgBoxW(u"Go on?", flags, u""), buttons[i]) << "of flags " << flags;
    }
  }
}

TEST_P(MsgBoxTest, EndsItsTextsAtANul) {
  MsgBoxW(String(u"a\0b", 3), 0, String(u"c\0d", 3));
  EXPECT_EQ(user()->seen().back().text, u"a");
  EXPECT_EQ(user()->seen().back().caption, u"c");
}

TEST_P(MsgBoxTest, HasTheTitleThatIsGiven) {
  MsgBoxW(u"Done", 0, u"Reports");
  EXPECT_EQ(user()->seen().back().caption, u"Reports");
  MsgBoxW(u"Done", 0, u" ");
  EXPECT_EQ(user()->seen().back().caption, u" ");
}

TEST_P(MsgBoxTest, HasTheApplicationsTitleWhereNoneIsGiven) {
  MsgBoxW(u"Done", 0x30, u"");
  EXPECT_EQ(user()->seen().back().caption, u"Tessaly");
}

TEST_P(MsgBoxTest, MayBeEmpty) {
  EXPECT_EQ(MsgBoxW(u"", 0, u""), 1);
  EXPECT_EQ(user()->seen().back().text, u"");
}

TEST_P(MsgBoxTest, ShowsEveryScriptAsItIs) {
  const String text = u"\u0416\u0443\u043A, \u65E5\u672C\u8A9E, \u05D0\u05D1, \u0E01, \U0001F600, \u00E9";
  MsgBoxW(text, 0, text);
  EXPECT_EQ(user()->seen().back().text, text);
  EXPECT_EQ(user()->seen().back().caption, text);
}

TEST_P(MsgBoxTest, StandsBeforeTheWindowThatIsActiveThen) {
  MsgBoxW(u"Done", 0, u"");
  EXPECT_EQ(user()->seen().back().owner, 0);
  const platform::WindowHandle window = user()->activate();
  MsgBoxW(u"Done", 0, u"");
  EXPECT_EQ(user()->seen().back().owner, window);
}

}  // namespace
}  // namespace tessaly::tests
