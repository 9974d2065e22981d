#pragma once

#include <windows.h>

#include <optional>

#include "tessaly/forms/KeyPress.h"
#include "tessaly/forms/UserControl.h"

namespace tessaly::win32 {

class ChildWindow;

/// What mouse and keys hold on a control. Where it is taken away, nobody tells of a release any more, and it
/// counts as one outside of the control, so that the press comes to nothing and nothing goes on that it has
/// begun: when the loop comes to it, or behind the event that runs, since that may still begin what the
/// release ends. Whoever calls holds the window's place.
class Presses {
 public:
  /// What the window posts to itself to be told by `tellLost`.
  static constexpr UINT kLostMessage = WM_USER + 0x54;

  /// A key that nobody holds: the press is a click's.
  static constexpr int kNoKey = 0;

  /// An event of the control, as long as it runs.
  class Event {
   public:
    explicit Event(Presses& presses) : presses_(&presses) { ++presses_->events_; }
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    ~Event() { presses_->endEvent(); }

   private:
    Presses* presses_;
  };

  explicit Presses(ChildWindow& place) : place_(&place) {}

  void pressed(MouseState button, MouseState shift, PixelPoint point);
  void released(MouseState button, MouseState shift, PixelPoint point);

  /// A press at a point that the mouse does not hold already, and its release.
  void pressKey(int key, PixelPoint point);
  void releaseKey(PixelPoint point);

  /// The window has the mouse, the keyboard or either no longer.
  void captureLost();
  void focusLost();
  void keyLost();

  /// Tells what has been lost; within an event, when that has ended.
  void tellLost();

  /// Before time passes or the mouse does something: what went elsewhere is told first.
  void settle();

  bool isKeyHeld() const { return key_.isHeld(); }

  /// To who looks at it: what has been lost holds nothing down.
  bool isHeld() const;

  /// Where the control finds the pointer, in its own pixels; nothing where it is the mouse's.
  std::optional<PixelPoint> pointer() const { return outside_ ? outside_ : key_.pointer(); }

 private:
  bool hasMouse() const;
  bool isKeyUp() const;
  void endEvent();
  void endKey(PixelPoint point);
  void tellLostLater();
  void endLostForNewPress();

  ChildWindow* place_;
  MouseState held_ = 0;
  KeyPress key_;

  /// A key that Windows knew to be down at its press. A message that a program has made up tells of none.
  int watchedKey_ = kNoKey;

  MouseState lostButtons_ = 0;
  bool isKeyLost_ = false;
  std::optional<PixelPoint> outside_;

  int events_ = 0;
  bool isToldBehindEvent_ = false;
};

}  // namespace tessaly::win32
