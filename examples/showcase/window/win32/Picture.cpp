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

/// A context that moves its origin for a while, and lets nothing be drawn outside of an area.
class Moved {
 public:
  Moved(HDC context, POINT corner, const RECT& inside) : context_(context), saved_(SaveDC(context)) {
    SetViewportOrgEx(context, corner.x, corner.y, nullptr);
    IntersectClipRect(context, 0, 0, inside.right, inside.bottom);
  }
  Moved(const Moved&) = delete;
  Moved& operator=(const Moved&) = delete;
  ~Moved() { RestoreDC(context_, saved_); }

 private:
  HDC context_;
  int saved_;
};

POINT cornerOf(HWND window, HWND top) {
  RECT area{};
  GetClientRect(window, &area);
  // Of a window that is laid out from the right both ends are asked, since its left is the other way round.
  MapWindowPoints(window, top, reinterpret_cast<POINT*>(&area), 2);
  return {area.left, area.top};
}

void print(HWND window, HWND top, HDC context) {
  RECT inside{};
  GetClientRect(window, &inside);
  {
    const Moved moved(context, cornerOf(window, top), inside);
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
