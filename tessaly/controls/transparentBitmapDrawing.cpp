// The composition: what lies on the control's surface, or on the target of a flattened picture.

#include "tessaly/base/Rounding.h"
#include "tessaly/controls/Doubled.h"
#include "tessaly/controls/SolidBrush.h"
#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/controls/transparentBitmapChildren.h"
#include "tessaly/platform/Desktop.h"

namespace tessaly {
namespace {

constexpr OLE_COLOR kRed = 0x0000FF;

PixelSize innerSize(const PictureBox& box) {
  return {roundToLong(box.ScaleWidth()), roundToLong(box.ScaleHeight())};
}

Long centred(Long area, Long source) { return roundToLong((static_cast<double>(area) - source) / 2); }
Long atEnd(Long area, Long source) { return roundToLong(static_cast<double>(area) - source); }

void fill(platform::DeviceContext target, PixelSize area, OLE_COLOR colour) {
  const SolidBrush brush(colour);
  SelectedBrush(target, brush).fill(area);
}

/// Copies a box to a part of the target, without the pixels of the key's colour.
void copy(const PictureBox& source, PixelSize sourceSize, platform::DeviceContext target, PixelPoint place,
          PixelSize size, OLE_COLOR key) {
  platform::desktop().drawing->TransparentBlt(target, place.x, place.y, size.width, size.height, source.hDC(),
                                              0, 0, sourceSize.width, sourceSize.height, key);
}

void copy(const PictureBox& source, PixelSize size, platform::DeviceContext target, PixelPoint place,
          OLE_COLOR key) {
  copy(source, size, target, place, size, key);
}

/// Where the main picture lies when it keeps its size. The border is left free only where the picture fills
/// the area exactly, so that any other lies that much up and left of the middle, as hosts know it.
PixelPoint placeInside(PixelSize area, PixelSize source, Long offset) {
  const Long x = centred(area.width, source.width);
  const Long y = centred(area.height, source.height);
  return {x != 0 ? x : offset, y != 0 ? y : offset};
}

/// Where an added picture lies, by its alignment; the place before it where the alignment is none.
PixelPoint anchored(Long alignment, PixelSize area, PixelSize source, PixelPoint before) {
  if (alignment < 0 || alignment > 8) return before;
  const auto along = [](Long third, Long length, Long own) {
    if (third == 0) return Long{0};
    return third == 1 ? centred(length, own) : atEnd(length, own);
  };
  return {along(alignment % 3, area.width, source.width), along(alignment / 3, area.height, source.height)};
}

}  // namespace

void transparentBitmap::composeImage(PictureBox* target, const Long& width, const Long& height) {
  UserControl& control = *children_->userControl;
  const Long offset = withBorder_ > 0 ? withBorder_ : 0;
  const PixelSize area{roundToLong(control.ScaleWidth() - doubled(offset)),
                       roundToLong(control.ScaleHeight() - doubled(offset))};
  const PictureReference& shown = isEnabled_ ? picture_ : disabledPicture_;
  if (!shown) {
    control.Cls();
    return;
  }
  const PixelSize source = loadMainPicture(shown);
  if (target != nullptr) {
    flatten(*target, width, height, source);
  } else {
    drawOnSurface(area, offset, source);
  }
}

PixelSize transparentBitmap::loadMainPicture(const PictureReference& shown) {
  PictureBox& box = *children_->Picture1;
  box.AutoRedraw(True);
  box.ScaleMode(Scale::kPixels);
  box.AutoSize(True);
  box.Picture(shown);
  return innerSize(box);
}

void transparentBitmap::flatten(PictureBox& target, Long width, Long height, PixelSize source) {
  const PictureBox& main = *children_->Picture1;
  target.Width(width > 0 ? width : main.Width());
  target.Height(height > 0 ? height : main.Height());
  const PixelSize area = innerSize(target);
  children_->userControl->BackColor(kRed);
  target.AutoRedraw(True);
  target.ScaleMode(Scale::kPixels);
  fill(target.hDC(), area, backcolor_);
  copy(main, source, target.hDC(), {0, 0}, area, maskColor_);
  drawOverlays(target.hDC(), area, {0, 0});
}

void transparentBitmap::drawOnSurface(PixelSize area, Long offset, PixelSize source) {
  UserControl& control = *children_->userControl;
  control.Cls();
  control.AutoRedraw(True);
  control.ScaleMode(Scale::kPixels);
  PixelPoint place;
  if (autoResize_) {
    copy(*children_->Picture1, source, control.hDC(), {offset, offset}, area, maskColor_);
  } else {
    place = placeInside(area, source, offset);
    copy(*children_->Picture1, source, control.hDC(), place, maskColor_);
  }
  drawOverlays(control.hDC(), area, place);
  control.Refresh();
}

void transparentBitmap::drawOverlays(platform::DeviceContext target, PixelSize area, PixelPoint place) {
  PictureBox& box = *children_->Picture2;
  for (const Overlay& overlay : bitmapList_) {
    box.AutoRedraw(True);
    box.ScaleMode(Scale::kPixels);
    box.Picture(overlay.source);
    box.AutoSize(True);
    const PixelSize source = innerSize(box);
    place = anchored(overlay.alignment, area, source, place);
    copy(box, source, target, place, overlay.maskColor);
  }
}

}  // namespace tessaly
