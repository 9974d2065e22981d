// What a host changes through a signal's pointers counts, and what it raises goes to the error handler.

#include <QDialog>
#include <QMessageBox>

#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

using qt::PictureButton;

class QtArgumentsTest : public ButtonOnStage {
 protected:
  QtArgumentsTest() {
    stage_.move(Stage::kInside);
    takeEvents();
  }

  void click() {
    stage_.press();
    stage_.release();
  }

  void raiseIn(void (PictureButton::*signal)()) {
    QObject::connect(&button(), signal, [] { throw RuntimeError(RuntimeError::TypeMismatch); });
  }
};

TEST_F(QtArgumentsTest, AHostMakesALeftPressOfARightOne) {
  QObject::connect(&button(), &PictureButton::MouseDown, [](std::int16_t* Button) { *Button = 1; });
  stage_.press(Qt::RightButton);
  EXPECT_EQ(border(), "sunken");
}

TEST_F(QtArgumentsTest, AHostTakesAPressAway) {
  QObject::connect(&button(), &PictureButton::MouseDown,
                   [](std::int16_t*, std::int16_t* Shift) { *Shift = 1; });
  click();
  EXPECT_EQ(takeEvents(), Events{});
}

TEST_F(QtArgumentsTest, WhatASlotRaisesGoesToTheErrorHandler) {
  raiseIn(&PictureButton::OnButtonClick);
  click();
  EXPECT_EQ(errors_, std::vector<Long>{RuntimeError::TypeMismatch});
  EXPECT_EQ(border(), "raised");
}

TEST_F(QtArgumentsTest, WhatASlotRaisesInATickOfTheRestIsSkipped) {
  raiseIn(&PictureButton::OnButtonSelectedTiming);
  tick(button(), kRest);
  EXPECT_EQ(errors_, std::vector<Long>{});
  EXPECT_EQ(timers(), std::vector<int>{kPoll});
}

TEST_F(QtArgumentsTest, NoMemoryInASlotIsErrorSeven) {
  QObject::connect(&button(), &PictureButton::MouseDown, [] { throw std::bad_alloc(); });
  stage_.press();
  EXPECT_EQ(errors_, std::vector<Long>{RuntimeError::OutOfMemory});
  EXPECT_EQ(border(), "raised");
}

TEST_F(QtArgumentsTest, AnErrorHandlerThatFailsItselfIsTheEnd) {
  button().setErrorHandler([](const RuntimeError& error) { throw error; });
  raiseIn(&PictureButton::OnButtonClick);
  click();
  EXPECT_EQ(takeEvents(), Events{"OnButtonClick"});
}

TEST_F(QtArgumentsTest, WithoutAHandlerTheUserIsToldWhenTheLoopComesToIt) {
  button().setErrorHandler({});
  raiseIn(&PictureButton::OnButtonClick);
  button().press();
  const auto* const box = stage_.window().findChild<QMessageBox*>();
  ASSERT_NE(box, nullptr);
  EXPECT_FALSE(box->isVisible());
  settle();
  EXPECT_TRUE(box->isVisible());
  EXPECT_TRUE(box->text().endsWith(QStringLiteral("(error 13)"))) << box->text().toStdString();
}

TEST_F(QtArgumentsTest, ManyErrorsMakeOneBox) {
  button().setErrorHandler({});
  raiseIn(&PictureButton::OnButtonClick);
  button().press();
  button().press();
  settle();
  EXPECT_EQ(stage_.window().findChildren<QMessageBox*>().size(), 1);
}

TEST_F(QtArgumentsTest, ADialogInsideAClickRunsToItsEnd) {
  QDialog dialog(&stage_.window());
  QObject::connect(&button(), &PictureButton::OnButtonClick, [&] {
    QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    EXPECT_EQ(dialog.exec(), QDialog::Accepted);
  });
  click();
  click();
  EXPECT_EQ(takeEvents(), (Events{"OnButtonClick", "OnButtonClick"}));
}

TEST_F(QtArgumentsTest, ADialogInsideAPressTakesTheReleaseAndTheNextOneClicks) {
  QDialog dialog(&stage_.window());
  const auto opened = QObject::connect(&button(), &PictureButton::MouseDown, [&] {
    QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    dialog.exec();
  });
  stage_.press();
  EXPECT_FALSE(button().isPressHeld());
  QObject::disconnect(opened);
  EXPECT_EQ(border(), "hidden");
  stage_.release();
  stage_.press();
  stage_.release();
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick"}));
}

TEST_F(QtArgumentsTest, TheControlsOwnEventsMayBeSetInsteadOfASignal) {
  int clicks = 0;
  button().control().events.OnButtonClick = [&] { ++clicks; };
  click();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(takeEvents(), Events{});
}

}  // namespace
}  // namespace tessaly::tests
