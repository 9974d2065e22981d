#include "tessaly/hosts/qt/Cursors.h"

#include <array>

#include "tessaly/hosts/qt/Pictures.h"

namespace tessaly::qt {
namespace {

constexpr std::int16_t kIcon = 99;

constexpr std::array kShapes{Qt::ArrowCursor,     Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
                             Qt::ArrowCursor,     Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
                             Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,   Qt::WaitCursor,
                             Qt::ForbiddenCursor, Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor};

}  // namespace

QCursor cursorOf(std::int16_t pointer, const MouseIcon& icon) {
  if (pointer == kIcon && icon.picture && !icon.picture->isEmpty()) {
    QCursor cursor(toPixmap(icon.picture), icon.hotSpot.x, icon.hotSpot.y);
    return cursor;
  }
  const bool isKnown = pointer > 0 && static_cast<std::size_t>(pointer) < kShapes.size();
  return {isKnown ? kShapes[static_cast<std::size_t>(pointer)] : Qt::ArrowCursor};
}

}  // namespace tessaly::qt
