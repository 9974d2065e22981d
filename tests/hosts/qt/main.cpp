// Qt's own main for its tests: without a display, whatever the machine has, and with the look that is the
// same everywhere.

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyleFactory>

#include "tests/hosts/qt/WithoutApplication.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  tessaly::tests::askWithoutApplication();
  const QApplication application(argc, argv);
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  return RUN_ALL_TESTS();
}
