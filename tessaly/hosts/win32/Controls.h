#pragma once

#include <windows.h>

#include <functional>
#include <string_view>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/PropertyBag.h"
#include "tessaly/hosts/win32/Export.h"

namespace tessaly {
class transparentBitmap;
class URLLink;
}  // namespace tessaly

namespace tessaly::win32 {

/// The class of a window that is a `transparentBitmap`, for CreateWindowEx and for dialog templates. Its
/// client area is the control; on a dense screen several pixels of it make one of the control's. The window's
/// text is the control's name for assistive technology; a letter behind & in it is its key in a dialog. With
/// the style WS_TABSTOP the control can be reached with Tab: then it shows that it has the focus, Space
/// presses it as long as it is held, and Return presses and releases it.
///
/// All that is here is for the thread that made the window, and what a control tells its host comes there.
/// Any of it may destroy the window or its form: the control then stays, without a window, until the message
/// ends in which that was.
inline constexpr wchar_t kPictureButtonClass[] = L"Tessaly.transparentBitmap";

/// The class of a window that is a `URLLink`. All is as above; where the window has no text, the link's own
/// is its name for assistive technology.
inline constexpr wchar_t kUrlLinkClass[] = L"Tessaly.URLLink";

/// Registers the controls' classes for all of the program, in the name of a module; on any thread. Done twice
/// it is done once; false where Windows refuses. A module that is unloaded before the program ends
/// unregisters them, when the last of the controls has gone.
TESSALY_WIN32_API bool registerControls(HINSTANCE module);
TESSALY_WIN32_API void unregisterControls(HINSTANCE module);

/// The control of a window, which belongs to the window: who keeps it must let go of it when the window is
/// destroyed. None for any other window, one of another process or one that has gone.
TESSALY_WIN32_API transparentBitmap* pictureButtonOf(HWND window);
TESSALY_WIN32_API URLLink* urlLinkOf(HWND window);

/// A window whose control reads its properties from a bag, which is needed no longer than the call. The
/// bounds are in the parent's pixels; the style has WS_CHILD anyway. What goes wrong comes out of the call:
/// what the control raises, and error 7 where there is no window.
TESSALY_WIN32_API HWND restorePictureButton(HWND parent, const RECT& bounds, int id, DWORD style,
                                            const PropertyBag& bag);
TESSALY_WIN32_API HWND restoreUrlLink(HWND parent, const RECT& bounds, int id, DWORD style,
                                      const PropertyBag& bag);

/// The properties of a window's control, in a bag of the caller's own. What the control raises comes out of
/// the call; error 9 for a window that is no control.
TESSALY_WIN32_API PropertyBag propertiesOf(HWND window);

/// What a control asks of its host and tells it, beside its own events.
struct Hosting {
  /// Whether the form runs, or is being designed.
  bool userMode = true;

  /// The property of a bag key has changed, so the form is to be saved. It is called from within the
  /// assignment, out of which comes what it raises; empty for nobody.
  std::function<void(std::u16string_view name)> onPropertyChanged;
};

/// The hosting of a window's control, for the host to change; error 9 for a window that is no control. It
/// goes with the control: it is asked for anew rather than kept.
TESSALY_WIN32_API Hosting& hostingOf(HWND window);

/// Who hears of what a control raises while an event of its window runs, and nobody else hears of: none for a
/// message box, which it is at first. The window is none where it has gone. One handler serves the controls
/// of all threads, and is called on the control's; a `RuntimeError` of its own ends there.
using ErrorHandler = std::function<void(HWND window, const RuntimeError& error)>;
TESSALY_WIN32_API void setErrorHandler(ErrorHandler handler);

}  // namespace tessaly::win32
