#pragma once

class QSize;
class QWidget;

namespace tessaly {
class UserControl;
}

namespace tessaly::qt {

/// Draws the control on its widget: the surface, the lines and labels above it, and a frame where the widget
/// has the keyboard. On a screen with a whole number of pixels for each logical one, each pixel of the
/// surface is a square. Error 7 where there is no memory for it.
void paintControl(QWidget& widget, UserControl& control);

/// The room that the control's labels take where each has its text in one line; none where there are none.
QSize sizeOfLabels(const UserControl& control);

}  // namespace tessaly::qt
