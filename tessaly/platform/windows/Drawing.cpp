#include "tessaly/platform/Drawing.h"

#include <windows.h>

#include <memory>

#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/ScaledAxis.h"

namespace tessaly::platform {
namespace {

HDC contextOf(DeviceContext surface) { return reinterpret_cast<HDC>(surface); }
HGDIOBJ objectOf(DrawingObject object) { return reinterpret_cast<HGDIOBJ>(object); }

/// A high byte would make an index of a palette's of it.
COLORREF colourOf(Long colour) { return static_cast<COLORREF>(colour) & 0xFFFFFFU; }

bool isBrush(DrawingObject object) { return GetObjectType(objectOf(object)) == OBJ_BRUSH; }

struct DeleteContext {
  void operator()(HDC context) const { DeleteDC(context); }
};
struct DeleteBitmap {
  void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using OwnedContext = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteContext>;
using OwnedBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteBitmap>;

/// The bitmap with pixels in memory that a surface draws on; without pixels where it is no surface.
BITMAP bitmapOf(HDC context) {
  DIBSECTION section{};
  if (GetObjectType(context) != OBJ_MEMDC) return {};
  const HGDIOBJ bitmap = GetCurrentObject(context, OBJ_BITMAP);
  return GetObjectW(bitmap, sizeof section, &section) == sizeof section ? section.dsBm : BITMAP{};
}

bool isSurface(DeviceContext surface) { return bitmapOf(contextOf(surface)).bmBits != nullptr; }

OwnedBitmap makeBitmap(Long width, Long height) {
  BITMAPINFO info{};
  // The height is negative where the first row is the top one.
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* pixels = nullptr;
  return OwnedBitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
}

void deleteSurfaceOf(HDC context) {
  const OwnedBitmap bitmap(static_cast<HBITMAP>(GetCurrentObject(context, OBJ_BITMAP)));
  const OwnedContext owned(context);
}

struct DeleteSurface {
  void operator()(HDC context) const { deleteSurfaceOf(context); }
};
using OwnedSurface = std::unique_ptr<std::remove_pointer_t<HDC>, DeleteSurface>;

OwnedSurface makeSurface(Long width, Long height) {
  OwnedContext context(CreateCompatibleDC(nullptr));
  OwnedBitmap bitmap = makeBitmap(width, height);
  if (!context || !bitmap || ::SelectObject(context.get(), bitmap.get()) == nullptr) return nullptr;
  // The context holds the bitmap from here on.
  static_cast<void>(bitmap.release());
  return OwnedSurface(context.release());
}

PixelView viewOf(HDC context) {
  const BITMAP bitmap = bitmapOf(context);
  if (bitmap.bmBits == nullptr) return {};
  // What was drawn may still wait to be.
  GdiFlush();
  return {static_cast<std::uint32_t*>(bitmap.bmBits), bitmap.bmWidth, bitmap.bmHeight};
}

struct Area {
  Long x, y, width, height;

  bool hasPixels() const { return width > 0 && height > 0; }
  bool liesWithin(const BITMAP& bitmap) const {
    return x >= 0 && y >= 0 && std::int64_t{x} + width <= bitmap.bmWidth &&
           std::int64_t{y} + height <= bitmap.bmHeight;
  }
};

bool copyUnscaled(HDC target, Long x, Long y, HDC source, const Area& from, COLORREF key) {
  return ::TransparentBlt(target, x, y, from.width, from.height, source, from.x, from.y, from.width,
                          from.height, key);
}

void scale(const PixelView& target, const PixelView& source, const ScaledAxis& columns,
           const ScaledAxis& rows, Long left, Long top, const Area& from) {
  std::uint32_t* pixel = target.pixels;
  for (Long y = 0; y < target.height; ++y) {
    const std::uint32_t* const row =
        source.pixels + std::ptrdiff_t{from.y + rows.sourceOf(top + y)} * source.width + from.x;
    for (Long x = 0; x < target.width; ++x) *pixel++ = row[columns.sourceOf(left + x)] & 0xFFFFFFU;
  }
}

/// What can be seen of it is scaled here, and apart from both surfaces: the system's own call mixes pixels
/// where it shrinks, on some versions takes others than the nearest ones, and nobody tells what it makes of
/// areas that overlap.
bool copyApart(HDC target, const Area& to, HDC source, const Area& from, COLORREF key) {
  const ScaledAxis columns{to.x, to.width, from.width};
  const ScaledAxis rows{to.y, to.height, from.height};
  const BITMAP bitmap = bitmapOf(target);
  const Span visibleColumns = columns.visible(bitmap.bmWidth);
  const Span visibleRows = rows.visible(bitmap.bmHeight);
  if (visibleColumns.isEmpty() || visibleRows.isEmpty()) return true;
  const OwnedSurface apart = makeSurface(visibleColumns.size(), visibleRows.size());
  if (!apart) return false;
  scale(viewOf(apart.get()), viewOf(source), columns, rows, visibleColumns.first, visibleRows.first, from);
  return copyUnscaled(target, visibleColumns.first, visibleRows.first, apart.get(),
                      {0, 0, visibleColumns.size(), visibleRows.size()}, key);
}

class WindowsDrawing final : public Drawing {
 public:
  DeviceContext createSurface(Long width, Long height) override {
    if (!isSurfaceSize(width, height)) return 0;
    return reinterpret_cast<DeviceContext>(makeSurface(width, height).release());
  }

  void deleteSurface(DeviceContext surface) override {
    if (isSurface(surface)) deleteSurfaceOf(contextOf(surface));
  }

  PixelView pixels(DeviceContext surface) override { return viewOf(contextOf(surface)); }

  bool TransparentBlt(DeviceContext target, Long x, Long y, Long width, Long height, DeviceContext source,
                      Long sourceX, Long sourceY, Long sourceWidth, Long sourceHeight, Long key) override {
    const Area to{x, y, width, height};
    const Area from{sourceX, sourceY, sourceWidth, sourceHeight};
    if (!isSurface(target) || !isSurface(source) || !to.hasPixels() || !from.hasPixels()) return false;
    if (!from.liesWithin(bitmapOf(contextOf(source)))) return false;
    const bool isScaled = width != sourceWidth || height != sourceHeight;
    return isScaled || source == target
               ? copyApart(contextOf(target), to, contextOf(source), from, colourOf(key))
               : copyUnscaled(contextOf(target), x, y, contextOf(source), from, colourOf(key));
  }

  DrawingObject CreateSolidBrush(Long colour) override {
    return reinterpret_cast<DrawingObject>(::CreateSolidBrush(colourOf(colour)));
  }

  DrawingObject SelectObject(DeviceContext surface, DrawingObject object) override {
    if (!isSurface(surface) || !isBrush(object)) return 0;
    return reinterpret_cast<DrawingObject>(::SelectObject(contextOf(surface), objectOf(object)));
  }

  Long FillRect(DeviceContext surface, const PixelArea& area, DrawingObject brush) override {
    // Small numbers would be brushes of the system's colours.
    if (!isSurface(surface) || !isBrush(brush)) return 0;
    const RECT rectangle{area.left, area.top, area.right, area.bottom};
    return ::FillRect(contextOf(surface), &rectangle, static_cast<HBRUSH>(objectOf(brush)));
  }

  bool DeleteObject(DrawingObject object) override {
    return isBrush(object) && ::DeleteObject(objectOf(object)) != FALSE;
  }
};

}  // namespace

Drawing& ownDrawing() {
  static WindowsDrawing drawing;
  return drawing;
}

}  // namespace tessaly::platform
