#include "tessaly/hosts/qt/ErrorBox.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QPointer>
#include <new>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/hosts/qt/Words.h"

namespace tessaly::qt {
void showErrorLater(QWidget& widget, const RuntimeError& error) noexcept try {
  static QPointer<QMessageBox> open;
  const QString text = said("%1 (error %2)").arg(said(error.what()), QString::number(error.number()));
  if (open) {
    qWarning("%s", qPrintable(text));
    return;
  }
  open = new QMessageBox(QMessageBox::Critical, QGuiApplication::applicationDisplayName(), text,
                         QMessageBox::Ok, widget.window());
  open->setTextFormat(Qt::PlainText);
  open->setAttribute(Qt::WA_DeleteOnClose);
  QMetaObject::invokeMethod(open, "open", Qt::QueuedConnection);
} catch (const std::bad_alloc&) {
  return;
}

}  // namespace tessaly::qt
