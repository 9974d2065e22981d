// What assistive technology is told of a picture button, and what it can do with it.

#include <QAccessible>

#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

class QtAccessibilityTest : public ButtonOnStage {
 protected:
  QAccessibleInterface& told() const { return *QAccessible::queryAccessibleInterface(&button()); }
};

TEST_F(QtAccessibilityTest, ItIsAButtonWithTheNameThatTheHostGaveIt) {
  button().setAccessibleName(QStringLiteral("Open"));
  EXPECT_EQ(told().role(), QAccessible::Button);
  EXPECT_EQ(told().text(QAccessible::Name), QStringLiteral("Open"));
}

TEST_F(QtAccessibilityTest, AClassOfAHostsOwnIsAButtonToo) {
  struct Own : qt::PictureButton {
  } own;
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&own)->role(), QAccessible::Button);
}

TEST_F(QtAccessibilityTest, ItsStateFollowsTheControl) {
  EXPECT_FALSE(told().state().disabled);
  EXPECT_FALSE(told().state().focusable);
  stage_.move(Stage::kInside);
  stage_.press();
  EXPECT_TRUE(told().state().pressed);
  button().enabled(false);
  EXPECT_TRUE(told().state().disabled);
  EXPECT_FALSE(told().state().pressed);
  button().setFocusPolicy(Qt::TabFocus);
  EXPECT_TRUE(told().state().focusable);
}

TEST_F(QtAccessibilityTest, ItCanBePressed) {
  QAccessibleActionInterface& actions = *told().actionInterface();
  EXPECT_TRUE(actions.actionNames().contains(QAccessibleActionInterface::pressAction()));
  actions.doAction(QAccessibleActionInterface::pressAction());
  settle();
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick"}));
  button().enabled(false);
  EXPECT_FALSE(actions.actionNames().contains(QAccessibleActionInterface::pressAction()));
  actions.doAction(QAccessibleActionInterface::pressAction());
  settle();
  EXPECT_EQ(takeEvents(), Events{});
}

// Whoever reads the screen waited for the answer until the dialog of the click was closed.
TEST_F(QtAccessibilityTest, APressComesWhenTheLoopDoes) {
  told().actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(takeEvents(), Events{});
  settle();
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick"}));
}

TEST_F(QtAccessibilityTest, APressOfAWidgetThatIsDisabledOrGoneMeanwhileIsNone) {
  told().actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  button().setEnabled(false);
  settle();
  button().setEnabled(true);
  told().actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  delete button_.data();
  settle();
  EXPECT_EQ(takeEvents(), Events{});
}

}  // namespace
}  // namespace tessaly::tests
