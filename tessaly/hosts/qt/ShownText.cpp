#include "tessaly/hosts/qt/ShownText.h"

#include <QTextDocument>

namespace tessaly::qt {

QString toolTipOf(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

QString titleOf(const QString& text) {
  return QString(text).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

}  // namespace tessaly::qt
