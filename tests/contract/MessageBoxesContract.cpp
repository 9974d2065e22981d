// What a body of the area MessageBoxes must do, whichever it is.

#include <gtest/gtest.h>

#include "tessaly/platform/Desktop.h"
#include "tests/contract/BoxUser.h"
#include "tests/contract/ButtonSets.h"
#include "tests/support/Platform.h"

namespace tessaly::tests {
namespace {

using namespace platform;

MessageBoxes& boxesInForce() { return *desktop().messageBoxes; }

Long showBox(Long type) { return boxesInForce().MessageBoxW(0, u"Go on?", u"Tests", type); }

class MessageBoxesContract : public testing::TestWithParam<Body> {
 protected:
  BoxUser* user() { return world_.user(); }

  /// The box that is shown for a type, as it is seen.
  ShownBox shown(Long type) {
    showBox(type);
    return user()->seen().back();
  }

 private:
  BoxWorld world_{GetParam()};
};

/// What a user sees of a box beside its texts.
class MessageBoxesLook : public MessageBoxesContract {
 protected:
  void SetUp() override {
    if (GetParam() == Body::Fake) GTEST_SKIP() << "nobody sees the boxes of a stand-in";
  }
};

INSTANTIATE_TEST_SUITE_P(Bodies, MessageBoxesContract, testing::ValuesIn(BoxUser::bodies()),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Bodies, MessageBoxesLook, testing::ValuesIn(BoxUser::bodies()),
                         testing::PrintToStringParamName());

TEST_P(MessageBoxesContract, GiveTheNumberOfTheButton) {
  for (const auto& [type, buttons] : buttonSets()) {
    for (const Long button : buttons) {
      user()->press(button);
      EXPECT_EQ(showBox(type), button) << "of set " << type;
    }
  }
}

TEST_P(MessageBoxesLook, ShowTheButtonsOfTheirSet) {
  for (const auto& [type, buttons] : buttonSets()) EXPECT_EQ(shown(type).buttons, buttons) << "set " << type;
}

TEST_P(MessageBoxesLook, ShowTheirIcon) {
  Long set = 0;
  for (const Long icon : kIcons) EXPECT_EQ(shown(icon | set++).icon, icon);
}

TEST_P(MessageBoxesContract, HaveTheirDefaultButtonWhereTheTypeTells) {
  for (const auto& [type, buttons] : buttonSets()) {
    for (std::size_t i = 0; i < buttons.size(); ++i) {
      const Long told = type | static_cast<Long>(i) * kPlaceOfDefault | 0x30;
      EXPECT_EQ(showBox(told), buttons[i]) << "of type " << told;
    }
  }
}

TEST_P(MessageBoxesContract, HaveTheirFirstButtonForDefaultWhereTheTypeTellsNoneOfThem) {
  for (const auto& [type, buttons] : buttonSets()) {
    for (auto i = static_cast<Long>(buttons.size()); i < 4; ++i)
      EXPECT_EQ(showBox(type | i * kPlaceOfDefault), buttons.front()) << "of set " << type << ", place " << i;
  }
}

TEST_P(MessageBoxesContract, FailForASetThatIsNone) {
  if (GetParam() == Body::Own && underWine()) GTEST_SKIP() << "Wine: it shows a box with all buttons";
  for (const Long type : {7, 8, 15, 0x107, 0x3F}) EXPECT_EQ(showBox(type), 0) << "of type " << type;
}

TEST_P(MessageBoxesContract, ShowTheirTextsWholeInAnyScript) {
  const String text = u"Größe: \u0416\u0443\u043A \u65E5\u672C\u8A9E \u05D0\u05D1 \U0001F600 &x %s \\n";
  boxesInForce().MessageBoxW(0, text.c_str(), u"\u0394\u03BF\u03BA\u03B9\u03BC\u03AE \u4E2D", 0);
  EXPECT_EQ(user()->seen().back().text, text);
  EXPECT_EQ(user()->seen().back().caption, u"\u0394\u03BF\u03BA\u03B9\u03BC\u03AE \u4E2D");
  boxesInForce().MessageBoxW(0, u"", u"Tests", 0);
  EXPECT_EQ(user()->seen().back().text, u"");
}

TEST_P(MessageBoxesContract, StandBeforeTheirOwner) {
  EXPECT_EQ(shown(0).owner, 0);
  const WindowHandle window = user()->activate();
  EXPECT_EQ(boxesInForce().GetActiveWindow(), window);
  boxesInForce().MessageBoxW(boxesInForce().GetActiveWindow(), u"Go on?", u"Tests", 0);
  EXPECT_EQ(user()->seen().back().owner, window);
}

TEST_P(MessageBoxesContract, HaveNoActiveWindowWhereThereIsNone) {
  EXPECT_EQ(boxesInForce().GetActiveWindow(), 0);
}

TEST(MessageBoxesNotShown, GiveNothing) {
  BoxWorld world(Body::Own);
  if (world.user() != nullptr) GTEST_SKIP() << "boxes are shown here";
  EXPECT_EQ(boxesInForce().GetActiveWindow(), 0);
  for (const auto& set : buttonSets()) EXPECT_EQ(showBox(set.type), 0);
}

}  // namespace
}  // namespace tessaly::tests
