#pragma once

#include <QMessageBox>
#include <optional>
#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly::qt {

/// A button of a box: the number that it answers, and what stands on it in English, Qt's own text where that
/// is empty.
struct BoxButton {
  Long result = 0;
  QMessageBox::StandardButton kind = QMessageBox::NoButton;
  const char* text = "";
};

/// What a type of message box asks for, by the platform's own bits.
struct BoxType {
  std::vector<BoxButton> buttons;
  /// Among the buttons.
  std::size_t defaultButton = 0;
  /// What Escape and the window's own button answer; nothing where a box can't be left so.
  std::optional<Long> escape;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  bool hasHelp = false;
  bool isOnTop = false;
  /// Whether it blocks all windows of the program, not its owner's alone.
  bool blocksAll = false;
  bool comesToFront = false;
  bool isAlignedRight = false;
  bool isRightToLeft = false;
};

/// Nothing for a set of buttons that is none.
std::optional<BoxType> boxType(Long type);

}  // namespace tessaly::qt
