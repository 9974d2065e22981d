#pragma once

#include <string>
#include <vector>

#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/forms/headless/Form.h"

namespace tessaly::tests {

/// A control of 40 by 30 at 20, 10 of a form, a user's hand, and a host that writes down what it hears.
class InputStage {
 public:
  InputStage();

  headless::Form form;
  transparentBitmap& control{form.add<transparentBitmap>({20, 10, 40, 30})};
  headless::Place& place{form.placeOf(control)};

  /// Puts the pointer on the control, on another point of it each time, or off it.
  void moveOn();
  void moveOff() { form.movePointer({5, 5}); }

  /// Puts the control under the pointer, or away from it, of which nothing tells it.
  void slipUnderPointer();
  void slipAway();

  void press() { form.press(); }
  void release() { form.release(); }
  void wait(Long milliseconds) { form.advance(milliseconds); }

  /// A press and a release.
  void click() {
    press();
    release();
  }

  /// What the host has heard since it was asked last: "selected", "rested" and "click".
  std::string heard();

  /// The control's state in words: "idle", or what holds of "hovered", "pressed", "raised" or "sunken",
  /// "polling", "counting", "rested" and "repeating".
  std::string state() const;

 private:
  void note(const std::string& event);
  std::string border() const;

  Long moves_ = 0;
  std::string heard_;
};

}  // namespace tessaly::tests
