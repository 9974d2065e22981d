#pragma once

#include <QGuiApplication>

namespace tessaly::bench {

/// What Qt's pictures need of an application, without a display; the first one serves the whole program.
class QtApplication {
 public:
  QtApplication() {
    if (QCoreApplication::instance() != nullptr) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "bench";
    static char* arguments[] = {name, nullptr};
    static QGuiApplication application(count, arguments);
  }
};

}  // namespace tessaly::bench
