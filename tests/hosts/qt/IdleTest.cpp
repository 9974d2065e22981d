// What a form costs while nobody uses it, and while the pointer only moves.

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <algorithm>

#include "tessaly/hosts/qt/Pictures.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Drawing.h"
#include "tests/controls/Figures.h"
#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

using qt::PictureButton;

TEST(QtIdleTest, TwoHundredIdleButtonsWakeNobody) {
  QWidget window;
  std::vector<PictureButton*> buttons;
  for (int number = 0; number < 200; ++number) {
    auto* const button = new PictureButton(&window);
    button->Picture(qt::toImage(ring({16, 16}, 40)));
    button->withBorder(1);
    button->setGeometry(number % 20 * 20, number / 20 * 20, 18, 18);
    buttons.push_back(button);
  }
  window.show();
  settle();
  EXPECT_TRUE(
      std::all_of(buttons.begin(), buttons.end(), [](auto* button) { return timersOf(*button).empty(); }));
  EXPECT_EQ(timersOf(window), std::vector<int>{});
}

class QtMovesTest : public ButtonOnStage {};

TEST_F(QtMovesTest, MovesOnAHoveringButtonComposeAndPaintNothing) {
  struct PaintCounter : QObject {
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override {
      paints += event->type() == QEvent::Paint ? 1 : 0;
      return false;
    }
  } counter;
  stage_.move(Stage::kInside);
  settle();
  button().installEventFilter(&counter);
  platform::fake::Drawing drawing;
  const platform::Override override(drawing);
  int moves = 0;
  QObject::connect(&button(), &PictureButton::MouseMove, [&] { ++moves; });
  for (int step = 1; step <= 100; ++step) stage_.move(Stage::kInside + QPoint(step % 20, step % 15));
  EXPECT_EQ(moves, 100);
  EXPECT_TRUE(drawing.calls().empty());
  EXPECT_EQ(counter.paints, 0);
}

TEST_F(QtMovesTest, HoverPressAndClickComposeNothing) {
  platform::fake::Drawing drawing;
  const platform::Override override(drawing);
  stage_.move(Stage::kInside);
  stage_.press();
  stage_.release();
  settle();
  EXPECT_EQ(takeEvents(), (Events{"OnButtonSelected", "OnButtonClick"}));
  EXPECT_TRUE(drawing.calls().empty());
  button().backcolor(0x102030);
  EXPECT_FALSE(drawing.calls().empty());
}

}  // namespace
}  // namespace tessaly::tests
