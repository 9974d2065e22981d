#pragma once

#include <optional>

#include "tessaly/forms/KeyPress.h"
#include "tessaly/hosts/qt/HeldMouse.h"

namespace tessaly::qt {

class WidgetPlace;

/// What mouse and keys hold on a control. Where nobody tells any more of a release, it counts as one outside
/// of the control: when the loop comes to it, or behind the event that runs, since that may still begin what
/// the release ends. Whoever calls holds the place.
class Presses {
 public:
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

  explicit Presses(WidgetPlace& place) : place_(&place) {}

  void pressed(MouseState button, MouseState shift, PixelPoint point);
  void moved(MouseState buttons, MouseState shift, PixelPoint point);
  void released(MouseState button, MouseState shift, PixelPoint point);

  /// A press at a point that the mouse does not hold already, and its release.
  void pressKey(PixelPoint point);
  void releaseKey(PixelPoint point);

  /// The keyboard has gone; all has.
  void keyLost();
  void allLost();

  /// A release that went elsewhere is told before time passes.
  void beforeTick();

  /// The widget goes, and nobody is told of anything.
  void forgetLost();

  void setCaptured(bool captured) { isCaptured_ = captured; }
  bool isHeld() const { return (isCaptured_ || key_.isHeld()) && !isKeyLost_; }

  /// Where the control finds the pointer; nothing where it is the mouse's.
  std::optional<PixelPoint> pointer() const;
  void forgetKeyPointer() { key_.forgetPointer(); }

 private:
  void endEvent();
  void captureLost();
  void tellLostLater();
  void tellLost();
  void endLostForNewPress();
  void endKey(PixelPoint point);

  WidgetPlace* place_;
  HeldMouse mouse_;
  KeyPress key_;

  /// Qt brings a widget that was pressed all of the mouse until the release, so nothing is left to do.
  bool isCaptured_ = false;

  /// What has been lost and is not told of yet.
  MouseState lostButtons_ = 0;
  bool isKeyLost_ = false;

  int events_ = 0;
  bool isToldBehindEvent_ = false;
  bool isReleasedOutside_ = false;
  bool isMoveOwed_ = false;
};

}  // namespace tessaly::qt
