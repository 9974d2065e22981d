// What a message box is told, on the platform's own boxes and on the stand-in.

#include <gtest/gtest.h>

#include "tessaly/dialogs/modMsgBoxW.h"
#include "tests/contract/BoxUser.h"

namespace tessaly::tests {
namespace {

using platform::fake::MessageBoxes;

class MsgBoxTest : public testing::TestWithParam<Body> {
 protected:
  void SetUp() override {
    if (user() == nullptr) GTEST_SKIP() << "no boxes are shown here";
  }

  BoxUser* user() { return world_.user(); }

 private:
  BoxWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Bodies, MsgBoxTest, testing::Values(Body::Own, Body::Fake),
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

TEST(MsgBox, HandsOnAllFlagsAsTheyAre) {
  MessageBoxes boxes;
  const platform::Override inForce(boxes);
  const std::vector<Long> all = {0, 0x10, 0x30,     0x104,      0x124, 1,
                                 6, 0xF,  0x200040, 0x7FFFFFFF, -1,    static_cast<Long>(0x80000000)};
  std::vector<Long> given;
  for (const Long flags : all) MsgBoxW(u"x", flags, u"");
  for (const auto& box : boxes.boxes()) given.push_back(box.type);
  EXPECT_EQ(given, all);
}

TEST(MsgBox, GivesBackEveryResultAsItIs) {
  MessageBoxes boxes;
  const platform::Override inForce(boxes);
  for (const Long result : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 32000, -1, 2147483647}) {
    boxes.answer([=](const MessageBoxes::Box& /*box*/) { return result; });
    EXPECT_EQ(MsgBoxW(u"x", 0, u""), result);
  }
}

TEST(MsgBox, AsksForTheActiveWindowEachTimeAndThenShows) {
  MessageBoxes boxes;
  const platform::Override inForce(boxes);
  boxes.activate(5);
  MsgBoxW(u"one", 0, u"");
  boxes.activate(6);
  MsgBoxW(u"two", 0, u"t");
  const std::vector<MessageBoxes::Box> expected = {{5, u"one", u"Tessaly", 0}, {6, u"two", u"t", 0}};
  EXPECT_EQ(boxes.boxes(), expected);
  const std::vector<std::string> calls = {"GetActiveWindow", "MessageBoxW", "GetActiveWindow", "MessageBoxW"};
  EXPECT_EQ(boxes.calls(), calls);
}

TEST(MsgBox, ShowsALongPrompt) {
  MessageBoxes boxes;
  const platform::Override inForce(boxes);
  const String prompt(30000, u'\u65E5');
  MsgBoxW(prompt, 0, u"");
  EXPECT_EQ(boxes.boxes().at(0).text, prompt);
}

TEST(MsgBox, MayShowAnotherWhileItIsThere) {
  MessageBoxes boxes;
  const platform::Override inForce(boxes);
  boxes.answer([](const MessageBoxes::Box& box) -> Long {
    return box.text == u"outer" ? MsgBoxW(u"inner", 4, u"") + 1 : 6;
  });
  EXPECT_EQ(MsgBoxW(u"outer", 4, u""), 7);
}

}  // namespace
}  // namespace tessaly::tests
