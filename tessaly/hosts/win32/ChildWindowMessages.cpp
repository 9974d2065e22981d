// The window's side of a child window: what Windows tells it, brought to the control.

#include <oleacc.h>
#include <windowsx.h>

#include "tessaly/hosts/win32/AccessibleControl.h"
#include "tessaly/hosts/win32/ChildWindow.h"
#include "tessaly/hosts/win32/Painting.h"

namespace tessaly::win32 {
namespace {

constexpr MouseState kLeftButton = 1;
constexpr MouseState kRightButton = 2;
constexpr MouseState kMiddleButton = 4;
constexpr MouseState kShift = 1;
constexpr MouseState kControl = 2;
constexpr MouseState kAlt = 4;
/// WM_DPICHANGED_AFTERPARENT, which headers for systems before Windows 10 lack.
constexpr UINT kDensityChanged = 0x02E3;
/// The window posts it to itself: a click for who can't use mouse or keys.
constexpr UINT kClickMessage = WM_USER + 0x55;
constexpr LPARAM kWasDownBefore = LPARAM{1} << 30;

MouseState either(bool first, MouseState one, bool second, MouseState two, bool third, MouseState three) {
  return static_cast<MouseState>((first ? one : 0) | (second ? two : 0) | (third ? three : 0));
}

MouseState buttonsOf(WPARAM keys) {
  return either((keys & MK_LBUTTON) != 0, kLeftButton, (keys & MK_RBUTTON) != 0, kRightButton,
                (keys & MK_MBUTTON) != 0, kMiddleButton);
}

MouseState shiftOf(WPARAM keys) {
  return either((keys & MK_SHIFT) != 0, kShift, (keys & MK_CONTROL) != 0, kControl, GetKeyState(VK_MENU) < 0,
                kAlt);
}

MouseState buttonOf(UINT message) {
  if (message == WM_LBUTTONDOWN || message == WM_LBUTTONUP) return kLeftButton;
  return message == WM_RBUTTONDOWN || message == WM_RBUTTONUP ? kRightButton : kMiddleButton;
}

bool isReturn(LPARAM messageOfDialog) {
  const auto* const message = reinterpret_cast<const MSG*>(messageOfDialog);
  return message != nullptr && message->wParam == VK_RETURN &&
         (message->message == WM_KEYDOWN || message->message == WM_CHAR);
}

/// The drawing of a window that is to be painted, from BeginPaint to EndPaint.
class Drawing {
 public:
  explicit Drawing(HWND window) : window_(window), context_(BeginPaint(window, &paint_)) {}
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;
  ~Drawing() { EndPaint(window_, &paint_); }

  HDC context() const { return context_; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
  HDC context_;
};

}  // namespace

std::optional<LRESULT> ChildWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
    case kDensityChanged:
      takeSize();
      return 0;
    case WM_WINDOWPOSCHANGED:
      endCaptureWhereHidden(*reinterpret_cast<const WINDOWPOS*>(lParam));
      return std::nullopt;
    case WM_TIMER:
      tick(wParam);
      return 0;
    case Presses::kLostMessage:
      presses_.tellLost();
      return 0;
    case kClickMessage:
      if (isReachedByInput()) click();
      return 0;
    case WM_SETCURSOR:
      if (LOWORD(lParam) == HTCLIENT && showCursor()) return TRUE;
      return std::nullopt;
    case WM_GETOBJECT:
      if (static_cast<LONG>(lParam) != OBJID_CLIENT) return std::nullopt;
      return answerOf(*this, wParam);
    case WM_PAINT:
    case WM_PRINTCLIENT:
    case WM_ERASEBKGND:
    case WM_SYSCOLORCHANGE:
      return handleDrawing(message, wParam);
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_SYSKEYUP:
    case WM_GETDLGCODE:
    case BM_CLICK:
      return handleKeys(message, wParam, lParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
    case WM_CANCELMODE:
    case WM_CAPTURECHANGED:
      return handleFocus(message, wParam, lParam);
    default:
      return handleMouse(message, wParam, lParam);
  }
}

std::optional<LRESULT> ChildWindow::handleMouse(UINT message, WPARAM keys, LPARAM place) {
  if (message < WM_MOUSEFIRST || message > WM_MBUTTONDBLCLK) return std::nullopt;
  toolTip_.relay(window_, message, keys, place);
  presses_.settle();
  if (presses_.isKeyHeld()) return 0;
  const PixelPoint point = density_.toControl(PixelPoint{GET_X_LPARAM(place), GET_Y_LPARAM(place)});
  switch (message) {
    case WM_MOUSEMOVE:
      raise([&](UserControl& control) { control.mouseMove(buttonsOf(keys), shiftOf(keys), point); });
      return 0;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
      presses_.pressed(buttonOf(message), shiftOf(keys), point);
      break;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
      presses_.released(buttonOf(message), shiftOf(keys), point);
      break;
    default:
      return std::nullopt;
  }
  tellState();
  return 0;
}

// Only a window with WS_TABSTOP listens to keys; BM_CLICK is what a dialog sends for the key in the window's
// text.
std::optional<LRESULT> ChildWindow::handleKeys(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == BM_CLICK) {
    click();
    return 0;
  }
  const bool isUp = message == WM_KEYUP || message == WM_SYSKEYUP;
  if (isUp && wParam == VK_SPACE && presses_.isKeyHeld()) {
    presses_.releaseKey(middle());
    return 0;
  }
  if (isUp || !isReachedByKeys()) return std::nullopt;
  if (message == WM_GETDLGCODE) return DLGC_BUTTON | (isReturn(lParam) ? DLGC_WANTMESSAGE : 0);
  if (wParam != VK_SPACE && wParam != VK_RETURN) return std::nullopt;
  if ((lParam & kWasDownBefore) != 0) return 0;
  if (wParam == VK_RETURN) {
    click();
  } else {
    presses_.pressKey(VK_SPACE, middle());
  }
  return 0;
}

// A key or a button that is released elsewhere comes to nothing, as a press does that is released outside.
std::optional<LRESULT> ChildWindow::handleFocus(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CAPTURECHANGED:
      if (reinterpret_cast<HWND>(lParam) == window_) return 0;
      presses_.captureLost();
      return 0;
    case WM_ENABLE:
      if (wParam == FALSE) giveUpPress();
      return std::nullopt;
    case WM_CANCELMODE:
      giveUpPress();
      return std::nullopt;
    case WM_KILLFOCUS:
      presses_.focusLost();
      break;
    default:
      break;
  }
  repaintLater();
  return 0;
}

std::optional<LRESULT> ChildWindow::handleDrawing(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_PAINT:
      paintWindow();
      return 0;
    case WM_PRINTCLIENT:
      paintOn(reinterpret_cast<HDC>(wParam));
      return 0;
    case WM_SYSCOLORCHANGE:
      repaintLater();
      return 0;
    default:
      // All of the window is painted at once, its background with it.
      return 1;
  }
}

// Nobody can release a button on what is not there.
void ChildWindow::endCaptureWhereHidden(const WINDOWPOS& change) {
  if ((change.flags & SWP_HIDEWINDOW) != 0) setCapture(false);
}

// The size that the control itself assigns is brought to it by the assignment. Where its form has come to
// another screen, whose density may come with a size that leaves the control's own as it was, it is painted
// anew.
void ChildWindow::takeSize() {
  const PixelSize before = size_;
  const Density densityBefore = density_;
  measure();
  if (size_ != before && !assignsSize_) raise([](UserControl& control) { control.resized(); });
  if (density_ != densityBefore) raise([this](UserControl&) { makeCursor(); });
  repaintLater();
}

// Not every program that knows of dense screens is told that one of its windows has come to another.
void ChildWindow::paintWindow() {
  if (Density::of(window_) != density_) takeSize();
  raise([](UserControl& control) { control.prepareToShow(); });
  if (window_ == nullptr) return;
  const Drawing drawing(window_);
  paintOn(drawing.context());
}

void ChildWindow::paintOn(HDC target) {
  raise([&](UserControl& control) {
    paint(target, control, {size_, inside(), density_, isReachedByKeys() && GetFocus() == window_});
  });
}

void ChildWindow::tick(UINT_PTR number) {
  presses_.settle();
  raise([&](UserControl&) { timers_.tick(window_, number); });
}

void ChildWindow::click() {
  presses_.pressKey(Presses::kNoKey, middle());
  presses_.releaseKey(middle());
}

bool ChildWindow::clickLater() const { return PostMessageW(window_, kClickMessage, 0, 0) != FALSE; }

void ChildWindow::giveUpPress() {
  presses_.keyLost();
  setCapture(false);
}

void ChildWindow::tell(DWORD change) const {
  if (window_ != nullptr) NotifyWinEvent(change, window_, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace tessaly::win32
