// What assistive technology is told of a picture button, and what it can do with it.

#include <QAccessible>
#include <QDialog>

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

/// Dialogs that stand before a widget, and others.
class QtAccessibilityBehindDialogsTest : public QtAccessibilityTest {
 protected:
  static bool offersPress(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction());
  }

  void press() const { told().actionInterface()->doAction(QAccessibleActionInterface::pressAction()); }

  static void show(QWidget& window, Qt::WindowModality modality) {
    window.setWindowModality(modality);
    window.show();
    settle();
  }
};

// The second press ran in the loop of the first one's dialog, and opened another.
TEST_F(QtAccessibilityBehindDialogsTest, APressDoesNotComeBehindTheDialogOfTheOneBefore) {
  QObject::connect(&button(), &qt::PictureButton::OnButtonClick, [this] {
    QDialog dialog(&stage_.window());
    QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    dialog.exec();
  });
  press();
  press();
  settle();
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick"}));
}

TEST_F(QtAccessibilityBehindDialogsTest, WhatADialogStandsBeforeIsNotPressed) {
  QDialog dialog;
  show(dialog, Qt::ApplicationModal);
  EXPECT_FALSE(offersPress(button()));
  press();
  settle();
  EXPECT_EQ(takeEvents(), Events{});
  dialog.hide();
  EXPECT_TRUE(offersPress(button()));
}

// A desktop's own dialog is one that Qt keeps a window for and does not show.
TEST_F(QtAccessibilityBehindDialogsTest, WhatADialogOfTheDesktopStandsBeforeIsNotPressed) {
  QDialog dialog;
  dialog.setAttribute(Qt::WA_DontShowOnScreen);
  show(dialog, Qt::ApplicationModal);
  EXPECT_FALSE(offersPress(button()));
}

TEST_F(QtAccessibilityBehindDialogsTest, WhatIsHiddenWhenThePressComesIsNotPressed) {
  press();
  button().hide();
  settle();
  EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(QtAccessibilityBehindDialogsTest, WhatStandsInADialogOrInAWindowOfItIsPressed) {
  QDialog dialog(&stage_.window());
  qt::PictureButton inDialog(&dialog);
  QWidget tools(&dialog, Qt::Tool);
  qt::PictureButton inTools(&tools);
  show(dialog, Qt::ApplicationModal);
  show(tools, Qt::NonModal);
  EXPECT_TRUE(offersPress(inDialog));
  EXPECT_TRUE(offersPress(inTools));
  EXPECT_FALSE(offersPress(button()));
}

TEST_F(QtAccessibilityBehindDialogsTest, ADialogOfOneFormLeavesTheOthersAlone) {
  QWidget other;
  qt::PictureButton inOther(&other);
  show(other, Qt::NonModal);
  QDialog dialog(&stage_.window());
  show(dialog, Qt::WindowModal);
  EXPECT_FALSE(offersPress(button()));
  EXPECT_TRUE(offersPress(inOther));
}

TEST_F(QtAccessibilityBehindDialogsTest, ADialogBehindAnotherStandsBeforeAllItDidBefore) {
  QWidget other;
  qt::PictureButton inOther(&other);
  show(other, Qt::NonModal);
  QDialog dialog(&stage_.window());
  show(dialog, Qt::ApplicationModal);
  QDialog question(&dialog);
  show(question, Qt::WindowModal);
  EXPECT_FALSE(offersPress(inOther));
}

}  // namespace
}  // namespace tessaly::tests
