// Who uses a host where there is no display: clicks its button and says yes to what it asks. A host's source
// knows nothing of it; the test's build puts it beside.

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include "examples/support/Print.h"
#include "tessaly/hosts/qt/PictureButton.h"
#include "tessaly/hosts/qt/Text.h"

namespace {

using tessaly::qt::PictureButton;

void sayYes() {
  const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  examples::printLine(u"It asks: ", tessaly::qt::fromQString(box->text()));
  box->button(QMessageBox::Yes)->click();
}

PictureButton* buttonOfTheHost() {
  for (const QWidget* const window : QApplication::topLevelWidgets()) {
    if (auto* const button = window->findChild<PictureButton*>()) return button;
  }
  return nullptr;
}

void clickWhereNobodyCan() {
  if (QGuiApplication::platformName() != QLatin1String("offscreen")) return;
  QTimer::singleShot(0, qApp, [] {
    QTimer::singleShot(0, qApp, sayYes);
    buttonOfTheHost()->press();
  });
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(clickWhereNobodyCan)
