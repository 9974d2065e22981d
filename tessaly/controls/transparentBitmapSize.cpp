// The control's size, and what lies along its edges: the border's place and colours, and whether the pointer
// is within.

#include <algorithm>
#include <limits>

#include "tessaly/base/Rounding.h"
#include "tessaly/base/RuntimeError.h"
#include "tessaly/controls/Doubled.h"
#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/controls/transparentBitmapChildren.h"
#include "tessaly/forms/Container.h"
#include "tessaly/forms/Screen.h"

namespace tessaly {
namespace {

constexpr Long kShade = 30;

/// A colour's three parts. Each divisor belongs to the look that hosts know: the one for blue is one less
/// than the place of blue, and so white's blue counts as 0.
struct Parts {
  Long red;
  Long green;
  Long blue;
};

constexpr Long lowByte(std::int64_t number) { return static_cast<Long>(number & 0xFF); }

constexpr std::int64_t floorOfQuotient(std::int64_t number, std::int64_t divisor) {
  return number / divisor - (number % divisor < 0 ? 1 : 0);
}

constexpr Parts partsOf(OLE_COLOR colour) {
  return {lowByte(colour), lowByte(floorOfQuotient(colour, 256)), lowByte(floorOfQuotient(colour, 65535))};
}

constexpr OLE_COLOR shaded(const Parts& parts, Long by) {
  const auto part = [by](Long value) { return std::clamp(value + by, Long{0}, Long{255}); };
  return part(parts.red) + 256 * part(parts.green) + 65536 * part(parts.blue);
}

std::int16_t narrowed(Long number) {
  if (number > std::numeric_limits<std::int16_t>::max()) throw RuntimeError(RuntimeError::Overflow);
  return static_cast<std::int16_t>(number);
}

void place(Line& line, Long x1, Long y1, Long x2, Long y2) {
  line.X1(x1);
  line.Y1(y1);
  line.X2(x2);
  line.Y2(y2);
}

}  // namespace

void transparentBitmap::Resize() {
  if (stretch_ && takeSizeOfPicture()) return;
  if (withBorder_ > 0) placeBorder();
  recompose();
}

/// Whether it has assigned a size, which has run Resize again: nothing is left to do then.
bool transparentBitmap::takeSizeOfPicture() {
  PictureBox& picture = *children_->Picture1;
  picture.AutoRedraw(True);
  picture.ScaleMode(Scale::kPixels);
  picture.AutoSize(True);
  UserControl& control = *children_->userControl;
  const Screen& screen = control.container().screen();
  const Long width = roundToLong((picture.Width() + doubled(withBorder_)) * screen.TwipsPerPixelX());
  const Long height = roundToLong((picture.Height() + doubled(withBorder_)) * screen.TwipsPerPixelY());
  const bool otherWidth = control.Width() != width;
  if (otherWidth) {
    control.Width(width);
    return true;
  }
  if (control.Height() == height) return false;
  control.Height(height);
  return true;
}

/// The left line ends above the bottom one and the right line begins below the top one, so that the corners
/// there belong to the lines of the other colour.
void transparentBitmap::placeBorder() {
  const Long right = roundToLong(children_->userControl->ScaleWidth() - 1);
  const Long bottom = roundToLong(children_->userControl->ScaleHeight() - 1);
  const auto& [topLine, bottomLine, leftLine, rightLine] = children_->Line1;
  place(*topLine, 0, 0, right, 0);
  place(*bottomLine, 0, bottom, right, bottom);
  place(*leftLine, 0, 0, 0, bottom - 1);
  place(*rightLine, right, 1, right, bottom);
}

void transparentBitmap::showBorder(Boolean visible, Boolean raised) {
  if (withBorder_ < 1) return;
  for (const auto& line : children_->Line1) {
    line->BorderWidth(narrowed(withBorder_));
    line->Visible(visible);
  }
  if (!visible) return;
  const OLE_COLOR dark = shaded(partsOf(backcolor_), -kShade);
  const OLE_COLOR light = shaded(partsOf(backcolor_), kShade);
  const auto& [topLine, bottomLine, leftLine, rightLine] = children_->Line1;
  topLine->BorderColor(raised ? light : dark);
  bottomLine->BorderColor(raised ? dark : light);
  leftLine->BorderColor(raised ? light : dark);
  rightLine->BorderColor(raised ? dark : light);
}

void transparentBitmap::isMouseInside(Boolean& inside) {
  Container& container = children_->userControl->container();
  const PixelPoint pointer = container.ScreenToClient(container.GetCursorPos());
  inside = pointer.x >= 0 && pointer.y >= 0 && pointer.x <= children_->userControl->ScaleWidth() &&
           pointer.y <= children_->userControl->ScaleHeight();
}

}  // namespace tessaly
