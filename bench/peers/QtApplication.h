#pragma once

#include <QApplication>

namespace tessaly::bench {

/// What Qt's pictures and widgets need of an application, without a display; the first one serves the whole
/// program and stays, since at its end Qt would look for what is gone.
class QtApplication {
 public:
  QtApplication() {
    if (QCoreApplication::instance() != nullptr) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "bench";
    static char* arguments[] = {name, nullptr};
    new QApplication(count, arguments);
  }
};

}  // namespace tessaly::bench
