#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "tessaly/forms/PropertyBag.h"
#include "tessaly/forms/Screen.h"
#include "tessaly/forms/Toolbox.h"
#include "tessaly/forms/UserControl.h"
#include "tessaly/forms/headless/Place.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly::headless {

class Clock;

/// Where a control stands on a form, in pixels from the form's top left corner.
struct Bounds {
  Long left = 0;
  Long top = 0;
  Long width = 0;
  Long height = 0;
};

/// A form without a display, for tests: its clock, its pointer and the mouse's buttons are moved by hand. The
/// controls belong to it; an event handler may remove one, or let go of the form itself. One thread uses it.
class TESSALY_DESKTOP_API Form {
 public:
  Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  ~Form();

  /// Puts a new control on top of the others: it is made with its place, gets InitProperties, then Resize.
  /// What that raises comes out of the call, and the control is gone then. Error 380 for a side below 0 or
  /// above 32767 pixels, and error 9 where the control is removed on the way.
  template <class Control>
  Control& add(const Bounds& bounds) {
    return *static_cast<Control*>(addControl(bounds, make<Control>, &UserControl::create));
  }

  /// The same for a stored control, which gets ReadProperties, then Resize.
  template <class Control>
  Control& add(const Bounds& bounds, const PropertyBag& bag) {
    return *static_cast<Control*>(
        addControl(bounds, make<Control>, [&](UserControl& control) { control.restore(bag); }));
  }

  /// Lets go of a control, which the form brings no event any more. It goes at once, or when the event ends
  /// in which it is. Error 9 where it does not stand on this form.
  template <class Control>
  void remove(Control& control) {
    removePlace(findPlace(&control));
  }

  /// The place of a control that `add` has given; error 9 for any other.
  template <class Control>
  Place& placeOf(const Control& control) const {
    return findPlace(&control);
  }

  /// Moves the clock. Timers tick in the order of their time, as often as their interval passes; error 380
  /// for a time below 0.
  void advance(Long milliseconds);

  /// Moves the pointer to a point of the form: the control that has captured the mouse gets a MouseMove, or
  /// else the topmost visible one that lies there. The pointer begins at the screen's top left corner.
  void movePointer(PixelPoint point, MouseState shift = 0);

  /// Presses or releases a button (1 left, 2 right, 4 middle) where the pointer is.
  void press(MouseState button = 1, MouseState shift = 0);
  void release(MouseState button = 1, MouseState shift = 0);

  /// Moves the form's top left corner to a point of the screen, from under the pointer; it begins at 100,
  /// 100.
  void moveTo(PixelPoint corner) { corner_ = corner; }

  /// Whether the form is being designed or runs, which it does at first.
  void setUserMode(bool runs) { userMode_ = runs; }

  /// The form's own screen, or another one in its place, which must outlive the form and its events.
  Screen& screen() const { return *screen_; }
  void setScreen(Screen& screen) {
    screen_ = std::shared_ptr<Screen>(&screen, [](Screen*) {});
  }

  /// What makes the engine's objects for the controls that are added from now on; it must outlive the form.
  void setToolbox(Toolbox& toolbox) { toolbox_ = &toolbox; }

  /// What the events that the form has brought have raised so far, oldest first.
  const std::vector<RuntimeError>& errors() const { return *errors_; }

 private:
  friend class Place;
  using Maker = std::function<std::shared_ptr<void>(Container&)>;
  using Beginning = std::function<void(UserControl&)>;

  template <class Control>
  static std::shared_ptr<void> make(Container& container) {
    return std::make_shared<Control>(container);
  }

  void* addControl(const Bounds& bounds, const Maker& maker, const Beginning& beginning);
  Place& findPlace(const void* control) const;
  void removePlace(Place& place);
  Place* target() const;
  PixelPoint pointerOn(const Place& place) const;

  std::shared_ptr<Clock> clock_;
  std::shared_ptr<Screen> screen_ = std::make_shared<Screen>();
  Toolbox ownToolbox_;
  Toolbox* toolbox_ = &ownToolbox_;
  PixelPoint corner_{100, 100};
  PixelPoint pointerOnScreen_;
  MouseState buttons_ = 0;
  bool userMode_ = true;
  Place* captured_ = nullptr;
  Long lastNumber_ = 0;
  std::shared_ptr<std::vector<RuntimeError>> errors_;
  std::vector<std::shared_ptr<Place>> places_;
};

}  // namespace tessaly::headless
