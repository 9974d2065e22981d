#pragma once

#include <windows.h>

#include <algorithm>
#include <vector>

#include "tessaly/forms/Picture.h"
#include "tessaly/hosts/win32/Controls.h"

namespace tessaly::tests {

/// A picture of what is drawn into a context of a window's size.
template <class Draw>
PictureReference drawnFor(HWND window, const Draw& draw) {
  RECT inner{};
  GetClientRect(window, &inner);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, inner.right, -inner.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const HDC context = CreateCompatibleDC(nullptr);
  const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  const HGDIOBJ before = SelectObject(context, bitmap);
  draw(context, inner);
  GdiFlush();
  const auto* const first = static_cast<const std::uint32_t*>(bits);
  std::vector<std::uint32_t> pixels(first, first + inner.right * inner.bottom);
  for (std::uint32_t& pixel : pixels) pixel |= 0xFF000000U;
  SelectObject(context, before);
  DeleteObject(bitmap);
  DeleteDC(context);
  return std::make_shared<const Picture>(
      PixelSize{static_cast<Long>(inner.right), static_cast<Long>(inner.bottom)}, std::move(pixels));
}

/// What a window draws when it is asked to, by WM_PRINT.
inline PictureReference printed(HWND window) {
  return drawnFor(window, [&](HDC context, const RECT&) {
    SendMessageW(window, WM_PRINT, reinterpret_cast<WPARAM>(context), PRF_CLIENT);
  });
}

/// What a window shows on its form.
inline PictureReference shown(HWND window) {
  UpdateWindow(window);
  return drawnFor(window, [&](HDC context, const RECT& area) {
    const HDC own = GetDC(window);
    BitBlt(context, 0, 0, area.right, area.bottom, own, 0, 0, SRCCOPY);
    ReleaseDC(window, own);
  });
}

inline bool samePixels(const Picture& one, const Picture& other) {
  return one.size() == other.size() && std::ranges::equal(one.pixels(), other.pixels());
}

}  // namespace tessaly::tests
