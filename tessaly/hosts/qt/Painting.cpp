#include "tessaly/hosts/qt/Painting.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QWidget>
#include <cmath>
#include <cstdint>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/Label.h"
#include "tessaly/forms/UserControl.h"
#include "tessaly/hosts/qt/Mouse.h"
#include "tessaly/hosts/qt/Text.h"

namespace tessaly::qt {
namespace {

QColor seen(OLE_COLOR colour, const UserControl& control) {
  return QColor::fromRgb(pixelOf(shownColour(colour, control.container())));
}

/// The surface is what it is, also where a screen has one and a half pixels for each of its own: there they
/// are mixed, since some would be wider than others.
void paintSurface(QPainter& painter, QSize area, UserControl& control) {
  const PixelSize size = control.container().size();
  if (toQSize(size) != area) painter.fillRect(QRect({}, area), seen(control.BackColor(), control));
  if (toQSize(size).isEmpty()) return;
  QImage image(toQSize(size), QImage::Format_RGB32);
  if (image.isNull()) throw RuntimeError(RuntimeError::OutOfMemory);
  control.drawOn({reinterpret_cast<std::uint32_t*>(image.bits()), size.width, size.height});
  const double ratio = painter.device()->devicePixelRatio();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, ratio != std::floor(ratio));
  painter.drawImage(0, 0, image);
}

QFont toQFont(const Font& font) {
  QFont result(toQString(font.name));
  result.setPointSizeF(font.points);
  result.setWeight(static_cast<QFont::Weight>(font.weight));
  result.setUnderline(font.isUnderlined);
  return result;
}

int textFlags(Long alignment) {
  const Qt::AlignmentFlag side = alignment == 1   ? Qt::AlignRight
                                 : alignment == 2 ? Qt::AlignHCenter
                                                  : Qt::AlignLeft;
  return static_cast<int>(side) | Qt::AlignAbsolute | Qt::AlignTop | Qt::TextWordWrap;
}

void paintLabel(QPainter& painter, const Label& label, const UserControl& control) {
  const auto pixels = [unit = control.scale().fromPixels(1)](double measure) { return measure / unit; };
  const QRectF area(pixels(label.Left()), pixels(label.Top()), pixels(label.Width()), pixels(label.Height()));
  painter.fillRect(area, seen(label.BackColor(), control));
  painter.setFont(toQFont(label.font()));
  painter.setPen(seen(label.ForeColor(), control));
  painter.drawText(area, textFlags(label.Alignment()), toQString(label.Caption()));
}

void paintFocus(QPainter& painter, QWidget& widget) {
  QStyleOptionFocusRect option;
  option.initFrom(&widget);
  option.state |= QStyle::State_KeyboardFocusChange;
  option.backgroundColor = widget.palette().color(QPalette::Window);
  widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &widget);
}

}  // namespace

void paintControl(QWidget& widget, UserControl& control) {
  QPainter painter(&widget);
  paintSurface(painter, widget.size(), control);
  for (const Label* label : control.labels()) paintLabel(painter, *label, control);
  if (widget.hasFocus()) paintFocus(painter, widget);
}

QSize sizeOfLabels(const UserControl& control) {
  QSize result;
  for (const Label* label : control.labels()) {
    const QFontMetrics metrics(toQFont(label->font()));
    result = result.expandedTo(metrics.size(0, toQString(label->Caption())));
  }
  return result;
}

}  // namespace tessaly::qt
