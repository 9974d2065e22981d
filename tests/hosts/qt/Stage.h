#pragma once

#include <gtest/gtest.h>

#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "tessaly/hosts/qt/PictureButton.h"

namespace tessaly::tests {

/// The intervals of the timers of Qt's that an object has running.
std::vector<int> timersOf(QObject& object);

/// The time of the object's running timer with this interval has come; no other timer's does.
void tick(QObject& object, int interval);

/// Lets Qt bring all that is under way but timers.
void settle();

/// The pixels of a widget as they are seen.
QImage seenOn(QWidget& widget);

/// A window with room around the widget that it holds, and the mouse that moves there, by the events that a
/// platform sends.
class Stage {
 public:
  static constexpr QPoint kInside{10, 12};
  static constexpr QPoint kOutside{-20, -15};

  Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;
  ~Stage();

  QWidget& window() const { return *window_; }

  /// Puts a widget into the middle of the window and shows both.
  void show(QWidget& widget, QSize size);

  /// Moves the pointer to a point of the widget.
  void move(QPoint pointOfWidget);

  /// At the pointer.
  void press(Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {});
  void release(Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {});

  /// All that is held, where another window hears of it.
  void releaseElsewhere();

  void doubleClick();

  /// Closes the window, which goes with all that it holds.
  void destroyWindow() { window_.reset(); }

 private:
  QPoint pointerOnWindow() const;

  std::unique_ptr<QWidget> window_;
  QPoint corner_;
  std::vector<Qt::MouseButton> held_;
};

/// A picture button on a stage, which writes down its events.
class ButtonOnStage : public testing::Test {
 protected:
  using Events = std::vector<std::string>;
  static constexpr int kPoll = 50;
  static constexpr int kRest = 1000;

  ButtonOnStage();

  qt::PictureButton& button() const { return *button_; }

  /// The events since the last call, such as "OnButtonClick"; of those of the mouse only where asked.
  Events takeEvents() { return std::exchange(events_, {}); }
  void listenToTheMouse();

  /// How the border is: "hidden", "raised" or "sunken", as it is seen.
  std::string border() const;

  std::vector<int> timers() const { return timersOf(button()); }

  Stage stage_;
  QPointer<qt::PictureButton> button_;
  std::vector<Long> errors_;

 private:
  void note(const std::string& name) { events_.push_back(name); }

  Events events_;
};

}  // namespace tessaly::tests
