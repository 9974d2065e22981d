// Which calls a message box makes, and what goes through it.

#include <gtest/gtest.h>

#include "tessaly/dialogs/modMsgBoxW.h"
#include "tests/contract/BoxUser.h"
#include "tests/contract/ButtonSets.h"

namespace tessaly::tests {
namespace {

using platform::fake::MessageBoxes;

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

TEST(MsgBox, HandsOnEachSetIconAndDefaultButton) {
  MessageBoxes boxes;
  const platform::Override inForce(boxes);
  std::vector<Long> all;
  for (Long set = 0; set <= 0xF; ++set) {
    for (const Long icon : kIcons) {
      for (Long place = 0; place < 4; ++place) all.push_back(set | icon | place * kPlaceOfDefault);
    }
  }
  std::vector<Long> given;
  for (const Long flags : all) MsgBoxW(u"x", flags, u"");
  for (const auto& box : boxes.boxes()) given.push_back(box.type);
  EXPECT_EQ(given, all);
}

TEST(MsgBox, GivesNothingWhereNoBoxIsShown) {
  BoxWorld world(Body::Own);
  if (world.user() != nullptr) GTEST_SKIP() << "boxes are shown here";
  for (const Long flags : {0, 0x10, 0x30, 0x104, 0x124}) EXPECT_EQ(MsgBoxW(u"Done", flags, u""), 0);
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
