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

void copy(const platform::PixelView& from, const platform::PixelView& to) {
  const auto width = static_cast<std::size_t>(std::min(from.width, to.width));
  for (Long row = 0; row < std::min(from.height, to.height); ++row) {
    std::copy_n(from.pixels + static_cast<std::ptrdiff_t>(row) * from.width, width,
                to.pixels + static_cast<std::ptrdiff_t>(row) * to.width);
  }
}

COLORREF colourOf(OLE_COLOR colour, const UserControl& control) {
  return static_cast<COLORREF>(shownColour(colour, control.container())) & 0xFFFFFFU;
}

OwnedFont fontOf(const Font& font, HDC target) {
  const int height =
      static_cast<int>(std::lround(font.points * GetDeviceCaps(target, LOGPIXELSY) / kPointsPerInch));
  return OwnedFont(CreateFontW(-height, 0, 0, 0, font.weight, FALSE, font.isUnderlined ? TRUE : FALSE, FALSE,
                               DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                               DEFAULT_PITCH | FF_DONTCARE, toWide(font.name).c_str()));
}

UINT formatOf(const Label& label) {
  const Long alignment = label.Alignment();
  const UINT side = alignment == 1 ? DT_RIGHT : alignment == 2 ? DT_CENTER : DT_LEFT;
  return side | DT_WORDBREAK | DT_NOPREFIX;
}

RECT areaOf(const Label& label, const UserControl& control) {
  const double unit = control.ScaleMode() == Scale::kTwips ? Scale::kTwipsPerPixel : 1;
  const auto pixels = [unit](double measure) { return static_cast<LONG>(std::lround(measure / unit)); };
  return {pixels(label.Left()), pixels(label.Top()), pixels(label.Left() + label.Width()),
          pixels(label.Top() + label.Height())};
}

void drawLabel(HDC target, const Label& label, const UserControl& control) {
  RECT area = areaOf(label, control);
  const OwnedBrush background(CreateSolidBrush(colourOf(label.BackColor(), control)));
  FillRect(target, &area, background.get());
  const OwnedFont font = fontOf(label.font(), target);
  const Selected selected(target, font.get());
  SetTextColor(target, colourOf(label.ForeColor(), control));
  SetBkMode(target, TRANSPARENT);
  const std::wstring caption = toWide(label.Caption());
  DrawTextW(target, caption.data(), static_cast<int>(caption.size()), &area, formatOf(label));
}

void drawFocus(HDC target, PixelSize size) {
  SetTextColor(target, RGB(0, 0, 0));
  SetBkColor(target, RGB(255, 255, 255));
  const RECT area{kFocusInset, kFocusInset, size.width - kFocusInset, size.height - kFocusInset};
  DrawFocusRect(target, &area);
}

bool hasVisibleLine(const UserControl& control) {
  return std::any_of(control.lines().begin(), control.lines().end(),
                     [](const Line* line) { return line->Visible() != 0; });
}

bool isSurfaceAlone(const UserControl& control, PixelSize size, const platform::PixelView& surface) {
  return surface.width == size.width && surface.height == size.height && control.labels().empty() &&
         !hasVisibleLine(control);
}

}  // namespace

void paint(HDC target, UserControl& control, PixelSize size, bool hasFocus) {
  if (size.width < 1 || size.height < 1) return;
  const platform::PixelView surface = control.surface();
  if (isSurfaceAlone(control, size, surface) && !hasFocus) return showAlone(target, surface);
  const Sheet sheet(size);
  if (sheet.pixels().pixels == nullptr) return;
  fill(sheet.pixels(), pixelOf(shownColour(control.BackColor(), control.container())));
  copy(surface, sheet.pixels());
  for (const Line* line : control.lines()) {
    if (line->Visible()) line->drawOn(sheet.pixels());
  }
  for (const Label* label : control.labels()) drawLabel(sheet.context(), *label, control);
  if (hasFocus) drawFocus(sheet.context(), size);
  sheet.show(target);
}

}  // namespace tessaly::win32
