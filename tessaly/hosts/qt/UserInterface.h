#pragma once

#include "tessaly/platform/Messages.h"

class QWidget;

namespace tessaly::qt {

/// Whether windows can be shown: there is a QApplication, and this is its thread.
bool canShowWindows();

/// A window's handle is its native id.
platform::WindowHandle handleOf(const QWidget& window);

/// None for 0 and for what is no widget of this program.
QWidget* widgetOf(platform::WindowHandle handle);

}  // namespace tessaly::qt
