#include "tessaly/hosts/win32/Painting.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

#include "tessaly/base/Text.h"
#include "tessaly/forms/Label.h"
#include "tessaly/forms/Line.h"
#include "tessaly/hosts/win32/Handles.h"

namespace tessaly::win32 {
namespace {

constexpr int kFocusInset = 2;
constexpr int kPointsPerInch = 72;

BITMAPINFO infoOf(Long width, Long height) {
  BITMAPINFO info{};
  // A negative height stands for rows from the top on.
  info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  return info;
}

/// Where all is put together before it is shown, so that nothing flickers.
class Sheet {
 public:
  explicit Sheet(PixelSize size)
      : size_(size),
        context_(CreateCompatibleDC(nullptr)),
        bitmap_(make(size, pixels_)),
        selected_(context_.get(), bitmap_.get()) {}

  HDC context() const { return context_.get(); }

  platform::PixelView pixels() const {
    GdiFlush();
    return {pixels_, size_.width, size_.height};
  }

  void show(HDC target) const { BitBlt(target, 0, 0, size_.width, size_.height, context(), 0, 0, SRCCOPY); }

  void showScaled(HDC target, const Density& density) const {
    const PixelSize scaled = density.toWindow(size_);
    SetStretchBltMode(target, density.isWhole() ? COLORONCOLOR : HALFTONE);
    SetBrushOrgEx(target, 0, 0, nullptr);
    StretchBlt(target, 0, 0, scaled.width, scaled.height, context(), 0, 0, size_.width, size_.height,
               SRCCOPY);
  }

 private:
  static HBITMAP make(PixelSize size, std::uint32_t*& pixels) {
    const BITMAPINFO info = infoOf(size.width, size.height);
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    pixels = static_cast<std::uint32_t*>(bits);
    return bitmap;
  }

  PixelSize size_;
  std::uint32_t* pixels_ = nullptr;
  OwnedContext context_;
  OwnedBitmap bitmap_;
  Selected selected_;
};

void showAlone(HDC target, const platform::PixelView& view) {
  const BITMAPINFO info = infoOf(view.width, view.height);
  SetDIBitsToDevice(target, 0, 0, static_cast<DWORD>(view.width), static_cast<DWORD>(view.height), 0, 0, 0,
                    static_cast<UINT>(view.height), view.pixels, &info, DIB_RGB_COLORS);
}

void fill(const platform::PixelView& view, std::uint32_t pixel) {
  const auto count = static_cast<std::size_t>(view.width) * static_cast<std::size_t>(view.height);
  std::fill_n(view.pixels, count, pixel);
}

COLORREF colourOf(OLE_COLOR colour, const UserControl& control) {
  return static_cast<COLORREF>(shownColour(colour, control.container())) & 0xFFFFFFU;
}

OwnedFont fontOf(const Font& font, const Density& density) {
  const double points = font.points * density.ratio();
  const int height = static_cast<int>(std::lround(points * Density::kUsual / kPointsPerInch));
  return OwnedFont(CreateFontW(-height, 0, 0, 0, font.weight, FALSE, font.isUnderlined ? TRUE : FALSE, FALSE,
                               DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                               DEFAULT_PITCH | FF_DONTCARE, toWide(font.name).c_str()));
}

UINT formatOf(const Label& label) {
  const Long alignment = label.Alignment();
  const UINT side = alignment == 1 ? DT_RIGHT : alignment == 2 ? DT_CENTER : DT_LEFT;
  return side | DT_WORDBREAK | DT_NOPREFIX;
}

RECT areaOf(const Label& label, const UserControl& control, const Density& density) {
  const double unit = control.scale().fromPixels(1) / density.ratio();
  const auto pixels = [unit](double measure) { return static_cast<LONG>(std::lround(measure / unit)); };
  return {pixels(label.Left()), pixels(label.Top()), pixels(label.Left() + label.Width()),
          pixels(label.Top() + label.Height())};
}

void drawLabel(HDC target, const Label& label, const UserControl& control, const Density& density) {
  RECT area = areaOf(label, control, density);
  const OwnedBrush background(CreateSolidBrush(colourOf(label.BackColor(), control)));
  FillRect(target, &area, background.get());
  const OwnedFont font = fontOf(label.font(), density);
  const Selected selected(target, font.get());
  SetTextColor(target, colourOf(label.ForeColor(), control));
  SetBkMode(target, TRANSPARENT);
  const std::wstring caption = toWide(label.Caption());
  DrawTextW(target, caption.data(), static_cast<int>(caption.size()), &area, formatOf(label));
}

/// Within a border, but around a text, which begins at the edge.
void drawFocus(HDC target, const UserControl& control, const Look& look) {
  SetTextColor(target, RGB(0, 0, 0));
  SetBkColor(target, RGB(255, 255, 255));
  const double within = control.labels().empty() ? kFocusInset : 0;
  const int inset = static_cast<int>(std::lround(within * look.density.ratio()));
  const RECT area{inset, inset, look.inside.width - inset, look.inside.height - inset};
  DrawFocusRect(target, &area);
}

bool hasVisibleLine(const UserControl& control) {
  return std::any_of(control.lines().begin(), control.lines().end(),
                     [](const Line* line) { return line->Visible() != 0; });
}

/// The surface as it is covers the window, and there is nothing else to show.
bool isSurfaceAlone(const UserControl& control, const Look& look) {
  const platform::PixelView surface = control.surface();
  return PixelSize{surface.width, surface.height} == look.inside && look.size == look.inside &&
         control.labels().empty() && !hasVisibleLine(control) && !look.hasFocus;
}

/// The surface with its lines, and what it does not reach of a window in which there is room for a part of a
/// pixel more.
void drawSurface(const Sheet& sheet, UserControl& control, const Look& look) {
  if (look.size == look.inside) return control.drawOn(sheet.pixels());
  fill(sheet.pixels(), pixelOf(shownColour(control.BackColor(), control.container())));
  if (look.size.width < 1 || look.size.height < 1) return;
  const Sheet own(look.size);
  if (own.pixels().pixels == nullptr) return;
  control.drawOn(own.pixels());
  own.showScaled(sheet.context(), look.density);
}

}  // namespace

void paint(HDC target, UserControl& control, const Look& look) {
  if (look.inside.width < 1 || look.inside.height < 1) return;
  if (isSurfaceAlone(control, look)) return showAlone(target, control.surface());
  const Sheet sheet(look.inside);
  if (sheet.pixels().pixels == nullptr) return;
  drawSurface(sheet, control, look);
  for (const Label* label : control.labels()) drawLabel(sheet.context(), *label, control, look.density);
  if (look.hasFocus) drawFocus(sheet.context(), control, look);
  sheet.show(target);
}

}  // namespace tessaly::win32
