#include "examples/showcase/window/win32/Picture.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/hosts/win32/Handles.h"

namespace showcase {
namespace {

using tessaly::PixelSize;
using tessaly::RuntimeError;

constexpr std::uint32_t kCoversWholly = 0xFF000000;

/// A window's inside, which may be mirrored itself.
RECT onScreen(HWND window) {
  RECT place{};
  GetClientRect(window, &place);
  MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

/// A context that is a window's own for a while: its corner is the origin, nothing is drawn outside of it,
/// and it runs the way that the window does.
class OwnContext {
 public:
  OwnContext(HDC context, HWND window, HWND top) : context_(context), saved_(SaveDC(context)) {
    const RECT place = onScreen(window);
    const RECT all = onScreen(top);
    const RECT inside{0, 0, place.right - place.left, place.bottom - place.top};
    const bool isFromRight = (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
    SetLayout(context, isFromRight ? LAYOUT_RTL : 0);
    SetViewportOrgEx(context, isFromRight ? all.right - place.right : place.left - all.left,
                     place.top - all.top, nullptr);
    IntersectClipRect(context, 0, 0, inside.right, inside.bottom);
    FillRect(context, &inside, GetSysColorBrush(COLOR_WINDOW));
  }
  OwnContext(const OwnContext&) = delete;
  OwnContext& operator=(const OwnContext&) = delete;
  ~OwnContext() { RestoreDC(context_, saved_); }

 private:
  HDC context_;
  int saved_;
};

void print(HWND window, HWND top, HDC context) {
  {
    const OwnContext own(context, window, top);
    SendMessageW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0);
    SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(context), PRF_CLIENT);
  }
  for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    if ((GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) != 0) print(child, top, context);
  }
}

tessaly::PictureReference pictureOf(PixelSize size, const std::uint32_t* pixels) {
  GdiFlush();
  std::vector<std::uint32_t> covering(pixels, pixels + static_cast<std::ptrdiff_t>(size.width) * size.height);
  for (std::uint32_t& pixel : covering) pixel |= kCoversWholly;
  return std::make_shared<const tessaly::Picture>(size, std::move(covering));
}

}  // namespace

tessaly::PictureReference pictureOf(HWND window) {
  RECT inside{};
  GetClientRect(window, &inside);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, inside.right, -inside.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const tessaly::win32::OwnedBitmap bitmap(
      CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  const tessaly::win32::OwnedContext context(CreateCompatibleDC(nullptr));
  if (!bitmap || !context) throw RuntimeError(RuntimeError::OutOfMemory);
  const tessaly::win32::Selected selected(context.get(), bitmap.get());
  print(window, window, context.get());
  return pictureOf({inside.right, inside.bottom}, static_cast<const std::uint32_t*>(bits));
}

}  // namespace showcase
