// What a body of the area MessageBoxes must do, whichever it is.

#include <gtest/gtest.h>

#include "tessaly/platform/Desktop.h"
#include "tests/contract/BoxUser.h"

namespace tessaly::tests {
namespace {

using namespace platform;

class MessageBoxesContract : public testing::TestWithParam<Body> {
 protected:
  static MessageBoxes& boxes() { return *desktop().messageBoxes; }
  BoxUser* user() { return world_.user(); }

 private:
  BoxWorld world_{GetParam()};
};

/// A set of buttons, by its number in the type.
struct ButtonSet {
  Long type;
  std::vector<Long> buttons;
};

const std::vector<ButtonSet>& buttonSets() {
  static const std::vector<ButtonSet> sets = {{0, {1}},    {1, {1, 2}}, {2, {3, 4, 5}},  {3, {6, 7, 2}},
                                              {4, {6, 7}}, {5, {4, 2}}, {6, {2, 10, 11}}};
  return sets;
}

INSTANTIATE_TEST_SUITE_P(Bodies, MessageBoxesContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(MessageBoxesContract, GiveTheNumberOfTheButton) {
  if (user() == nullptr) GTEST_SKIP() << "no boxes are shown here";
  for (const auto& [type, buttons] : buttonSets()) {
    for (const Long button : buttons) {
      user()->press(button);
      EXPECT_EQ(boxes().MessageBoxW(0, u"Go on?", u"Tests", type), button) << "of set " << type;
    }
  }
}

TEST_P(MessageBoxesContract, ShowTheButtonsOfTheirSet) {
  if (user() == nullptr) GTEST_SKIP() << "no boxes are shown here";
  for (const auto& [type, buttons] : buttonSets()) {
    boxes().MessageBoxW(0, u"Go on?", u"Tests", type);
    const auto& shown = user()->seen().back().buttons;
    EXPECT_EQ(shown, GetParam() == Body::Own ? buttons : std::vector<Long>()) << "set " << type;
  }
}

TEST_P(MessageBoxesContract, HaveTheirDefaultButtonWhereTheTypeTells) {
  if (user() == nullptr) GTEST_SKIP() << "no boxes are shown here";
  for (const auto& [type, buttons] : buttonSets()) {
    for (std::size_t i = 0; i < buttons.size(); ++i) {
      const Long told = type | static_cast<Long>(i) << 8 | 0x30;
      EXPECT_EQ(boxes().MessageBoxW(0, u"Go on?", u"Tests", told), buttons[i]) << "of type " << told;
    }
  }
}

TEST_P(MessageBoxesContract, ShowTheirTextsWholeInAnyScript) {
  if (user() == nullptr) GTEST_SKIP() << "no boxes are shown here";
  const String text = u"Größe: \u0416\u0443\u043A \u65E5\u672C\u8A9E \u05D0\u05D1 \U0001F600 &x %s \\n";
  boxes().MessageBoxW(0, text.c_str(), u"\u0394\u03BF\u03BA\u03B9\u03BC\u03AE \u4E2D", 0);
  EXPECT_EQ(user()->seen().back().text, text);
  EXPECT_EQ(user()->seen().back().caption, u"\u0394\u03BF\u03BA\u03B9\u03BC\u03AE \u4E2D");
  boxes().MessageBoxW(0, u"", u"Tests", 0);
  EXPECT_EQ(user()->seen().back().text, u"");
}

TEST_P(MessageBoxesContract, StandBeforeTheirOwner) {
  if (user() == nullptr) GTEST_SKIP() << "no boxes are shown here";
  const WindowHandle window = user()->activate();
  EXPECT_EQ(boxes().GetActiveWindow(), window);
  boxes().MessageBoxW(boxes().GetActiveWindow(), u"Go on?", u"Tests", 0);
  EXPECT_EQ(user()->seen().back().owner, window);
}

TEST_P(MessageBoxesContract, GiveNothingWhereTheyAreNotShown) {
  if (user() != nullptr) GTEST_SKIP() << "boxes are shown here";
  EXPECT_EQ(boxes().GetActiveWindow(), 0);
  for (const auto& set : buttonSets()) EXPECT_EQ(boxes().MessageBoxW(0, u"Go on?", u"Tests", set.type), 0);
}

TEST_P(MessageBoxesContract, HaveNoActiveWindowWhereThereIsNone) { EXPECT_EQ(boxes().GetActiveWindow(), 0); }

}  // namespace
}  // namespace tessaly::tests
