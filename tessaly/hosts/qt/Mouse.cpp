#include "tessaly/hosts/qt/Mouse.h"

namespace tessaly::qt {
namespace {

constexpr int bit(bool isSet, int place) { return isSet ? 1 << place : 0; }

}  // namespace

MouseState mouseState(Qt::MouseButtons buttons) {
  return static_cast<MouseState>(bit(buttons.testFlag(Qt::LeftButton), 0) |
                                 bit(buttons.testFlag(Qt::RightButton), 1) |
                                 bit(buttons.testFlag(Qt::MiddleButton), 2));
}

MouseState shiftState(Qt::KeyboardModifiers modifiers) {
  return static_cast<MouseState>(bit(modifiers.testFlag(Qt::ShiftModifier), 0) |
                                 bit(modifiers.testFlag(Qt::ControlModifier), 1) |
                                 bit(modifiers.testFlag(Qt::AltModifier), 2));
}

}  // namespace tessaly::qt
