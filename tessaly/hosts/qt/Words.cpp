#include "tessaly/hosts/qt/Words.h"

#include <QCoreApplication>

namespace tessaly::qt {

QString said(const char* english) { return QCoreApplication::translate("Tessaly", english); }

}  // namespace tessaly::qt
