#pragma once

#include <QKeyEvent>
#include <cstdint>

namespace showcase {

/// A key of Qt's by the number that the tool knows it by: F1 is 112, and letters and digits are themselves; 0
/// for any other.
inline std::int16_t keyNumber(const QKeyEvent& event) {
  constexpr std::int16_t firstF = 112;
  const int key = event.key();
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return static_cast<std::int16_t>(key - Qt::Key_F1 + firstF);
  const bool isItself = (key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z);
  return static_cast<std::int16_t>(isItself ? key : 0);
}

/// Shift 1, Ctrl 2 and Alt 4.
inline std::int16_t shiftState(const QKeyEvent& event) {
  const auto held = event.modifiers();
  return static_cast<std::int16_t>((held.testFlag(Qt::ShiftModifier) ? 1 : 0) |
                                   (held.testFlag(Qt::ControlModifier) ? 2 : 0) |
                                   (held.testFlag(Qt::AltModifier) ? 4 : 0));
}

}  // namespace showcase
