// The container's side of a child window: what the control asks of it and has it do.

#include "tessaly/hosts/win32/ChildWindow.h"

#include <algorithm>
#include <utility>

#include "tessaly/base/Text.h"
#include "tessaly/hosts/win32/ErrorReport.h"
#include "tessaly/hosts/win32/Pointers.h"

namespace tessaly::win32 {
namespace {

constexpr Long kLongestSide = 32767;
constexpr std::int16_t kIconPointer = 99;

/// Farther away than any screen, where Windows does not tell of the pointer.
constexpr PixelPoint kFarAway{-1000000, -1000000};

void checkSize(PixelSize size) {
  const bool isSize =
      size.width >= 0 && size.height >= 0 && size.width <= kLongestSide && size.height <= kLongestSide;
  if (!isSize) throw RuntimeError(RuntimeError::InvalidPropertyValue);
}

PixelPoint pointOf(const POINT& point) { return {static_cast<Long>(point.x), static_cast<Long>(point.y)}; }

/// How much wider and higher a window is than its client area.
PixelSize frameOf(HWND window) {
  RECT outer{};
  RECT inner{};
  GetWindowRect(window, &outer);
  GetClientRect(window, &inner);
  return {static_cast<Long>(outer.right - outer.left - inner.right),
          static_cast<Long>(outer.bottom - outer.top - inner.bottom)};
}

/// Whether neither a window nor one that it lies in is disabled.
bool isEnabledWithAllAround(HWND window) {
  const HWND desktop = GetDesktopWindow();
  HWND around = window;
  while (around != nullptr && around != desktop && IsWindowEnabled(around) != FALSE) {
    around = GetAncestor(around, GA_PARENT);
  }
  return around == nullptr || around == desktop;
}

}  // namespace

ChildWindow::ChildWindow(const ControlKind& kind, HWND window) : kind_(&kind), window_(window) {}

// The control still has its container while it goes.
ChildWindow::~ChildWindow() {
  control_.reset();
  if (userControl_ != nullptr) userControl_->leave();
}

PropertyBag ChildWindow::save() {
  const auto held = shared_from_this();
  PropertyBag bag;
  userControl_->save(bag);
  return bag;
}

bool ChildWindow::isReachedByKeys() const { return (GetWindowLongW(window_, GWL_STYLE) & WS_TABSTOP) != 0; }

bool ChildWindow::isReachedByInput() const {
  return isEnabled() && IsWindowVisible(window_) != FALSE && isEnabledWithAllAround(window_);
}

bool ChildWindow::hasNameOfItsOwn() const {
  return control_ != nullptr && kind_->name != nullptr && GetWindowTextLengthW(window_) == 0;
}

BSTR ChildWindow::nameOfControl() const noexcept try {
  const std::wstring name = toWide(kind_->name(control_.get()));
  return SysAllocStringLen(name.data(), static_cast<UINT>(name.size()));
} catch (const std::bad_alloc&) {
  return nullptr;
}

// What Resize raises must not pass through the window's procedure, so it is raised here.
void ChildWindow::setSize(PixelSize size) {
  checkSize(size);
  if (size == size_ || window_ == nullptr) return;
  const auto held = shared_from_this();
  const PixelSize before = size_;
  const PixelSize frame = frameOf(window_);
  const PixelSize wanted = density_.toWindow(size);
  const bool outermost = !std::exchange(assignsSize_, true);
  SetWindowPos(window_, nullptr, 0, 0, wanted.width + frame.width, wanted.height + frame.height,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
  if (outermost) assignsSize_ = false;
  if (size_ != before) userControl_->resized();
}

PixelSize ChildWindow::inside() const {
  RECT inner{};
  GetClientRect(window_, &inner);
  return {static_cast<Long>(inner.right), static_cast<Long>(inner.bottom)};
}

void ChildWindow::measure() {
  density_ = Density::of(window_);
  const PixelSize room = density_.toControl(inside());
  size_ = {std::min(room.width, kLongestSide), std::min(room.height, kLongestSide)};
}

bool ChildWindow::isVisible() { return (GetWindowLongA(window_, GWL_STYLE) & WS_VISIBLE) != 0; }

// Points of the screen are Windows's own; those that a control sees of itself are in its pixels.
PixelPoint ChildWindow::GetCursorPos() {
  POINT point{};
  if (const auto press = presses_.pointer()) {
    const PixelPoint place = density_.toWindow(*press);
    point = {place.x, place.y};
    ClientToScreen(window_, &point);
    return pointOf(point);
  }
  return ::GetCursorPos(&point) != FALSE ? pointOf(point) : kFarAway;
}

PixelPoint ChildWindow::ScreenToClient(PixelPoint point) {
  POINT result{point.x, point.y};
  ::ScreenToClient(window_, &result);
  return density_.toControl(pointOf(result));
}

// A key leaves the mouse alone.
void ChildWindow::setCapture(bool captured) {
  if (window_ == nullptr) return;
  if (!captured) {
    if (::GetCapture() == window_) ReleaseCapture();
  } else if (!presses_.isKeyHeld()) {
    SetCapture(window_);
  }
}

void ChildWindow::setTimer(Timer& timer, Long milliseconds) {
  if (window_ == nullptr) return;
  if (milliseconds > 0) {
    timers_.start(window_, timer, milliseconds);
  } else {
    timers_.stop(window_, timer);
  }
}

void ChildWindow::setCursor(std::int16_t pointer, const MouseIcon& icon) {
  pointer_ = pointer;
  mouseIcon_ = icon;
  makeCursor();
}

// The cursor that is shown goes only when another one is.
void ChildWindow::makeCursor() {
  const bool isIcon = pointer_ == kIconPointer;
  const OwnedCursor before = std::exchange(icon_, isIcon ? cursorOf(mouseIcon_, density_) : OwnedCursor());
  if (window_ != nullptr && windowUnderPointer() == window_) chooseCursorAnew(window_);
}

bool ChildWindow::showCursor() const {
  HCURSOR cursor = systemCursor(screenOfThread().MousePointer());
  if (cursor == nullptr) cursor = pointer_ == kIconPointer ? icon_.get() : systemCursor(pointer_);
  if (cursor != nullptr) SetCursor(cursor);
  return cursor != nullptr;
}

void ChildWindow::setToolTip(std::u16string_view text) {
  if (window_ != nullptr) toolTip_.set(window_, toWide(text));
}

void ChildWindow::repaint() {
  repaintLater();
  if (window_ != nullptr) UpdateWindow(window_);
}

// Without a window to name, Windows would have all windows painted.
void ChildWindow::repaintLater() {
  if (window_ != nullptr) InvalidateRect(window_, nullptr, FALSE);
}

void ChildWindow::PropertyChanged(std::u16string_view name) {
  if (name == u"enabled") tellState();
  if (name == u"Text" && hasNameOfItsOwn()) tell(EVENT_OBJECT_NAMECHANGE);
  const auto told = hosting_.onPropertyChanged;
  if (told) told(name);
}

void ChildWindow::onError(const RuntimeError& error) noexcept { report(window_, error); }

OLE_COLOR ChildWindow::systemColour(Long number) { return static_cast<OLE_COLOR>(GetSysColor(number)); }

Screen& ChildWindow::screen() { return screenOfThread(); }

}  // namespace tessaly::win32
