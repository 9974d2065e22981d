#pragma once

#include <string_view>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/Colour.h"
#include "tessaly/forms/Geometry.h"
#include "tessaly/forms/Picture.h"
#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/Messages.h"

namespace tessaly {

class Screen;
class Timer;
class UserControl;
struct Toolbox;

/// What stands behind a `MousePointer` of 99: a picture and the point of it that points.
struct MouseIcon {
  PictureReference picture;
  PixelPoint hotSpot;
};

/// The place of one control on a form: what the control can ask of the form, and what it tells it. A body
/// makes the control with itself, holds it, raises its events through its `UserControl`, and holds it on for
/// as long as an event runs, since the host may let go of it there. What its own loop brings it raises
/// through `guarded`. Where it goes before the control, it ends the control's timers itself. All calls come
/// on the form's thread.
struct TESSALY_DESKTOP_API Container {
  Container() = default;
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;
  virtual ~Container() = default;

  /// The control's surface introduces itself when it is made, and takes its leave when it goes.
  virtual void attach(UserControl& control) = 0;
  virtual void detach() = 0;

  virtual PixelSize size() = 0;

  /// Gives the control another size, or another than asked for, or none. Where it changes, the control has
  /// had its Resize when the call returns; what Resize raises comes out of the call.
  virtual void setSize(PixelSize size) = 0;

  /// The control's window, or 0 where it has none.
  virtual platform::WindowHandle hWnd() = 0;

  /// Whether the control's own window is shown, whatever its parents are.
  virtual bool isVisible() = 0;

  /// The pointer on the screen, and a point of the screen as seen from the control's top left corner.
  virtual PixelPoint GetCursorPos() = 0;
  virtual PixelPoint ScreenToClient(PixelPoint point) = 0;

  /// While it is captured, the control gets the mouse's events also from outside of it.
  virtual void setCapture(bool captured) = 0;

  /// Calls the timer's `tick` again and again, each time that many milliseconds after the last return of it;
  /// begins anew where it runs already. 0 ends it. A timer that goes ends itself.
  virtual void setTimer(Timer& timer, Long milliseconds) = 0;

  /// The pointer over the control: 0 the usual one, 99 the icon.
  virtual void setCursor(std::int16_t pointer, const MouseIcon& icon) = 0;
  virtual void setToolTip(std::u16string_view text) = 0;

  /// Shows the control as it is now: at once, or when there is time for it.
  virtual void repaint() = 0;
  virtual void repaintLater() = 0;

  /// False where the form is being designed, true where it runs.
  virtual bool UserMode() = 0;

  /// The property of this bag key has changed, so the form is to be saved.
  virtual void PropertyChanged(std::u16string_view name) = 0;

  /// An error that an event raised which the form's own loop has brought, and which nobody else hears of.
  virtual void onError(const RuntimeError& error) noexcept = 0;

  /// The system's colour of a number, such as 15 for the face of a button.
  virtual OLE_COLOR systemColour(Long number) = 0;

  /// It stays for as long as an event of the control runs, whatever becomes of the form: what has changed the
  /// pointer there puts it right again.
  virtual Screen& screen() = 0;

  /// What makes the engine's objects for the control; the engine's own where nothing else is told.
  virtual Toolbox& toolbox();
};

}  // namespace tessaly
