#pragma once

class QWidget;

namespace tessaly {
class RuntimeError;
}

namespace tessaly::qt {

/// Tells the user of an error when the loop comes to it, in a box on the widget's window; while one is open,
/// further ones only go to Qt's log. Nothing without memory for it.
void showErrorLater(QWidget& widget, const RuntimeError& error) noexcept;

}  // namespace tessaly::qt
