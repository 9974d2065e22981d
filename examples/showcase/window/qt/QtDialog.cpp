#include "examples/showcase/window/qt/QtDialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <utility>

#include "examples/showcase/window/qt/Fields.h"
#include "examples/showcase/window/qt/Keys.h"
#include "tessaly/hosts/qt/Pictures.h"
#include "tessaly/hosts/qt/Text.h"

namespace showcase {

using tessaly::Long;
using tessaly::qt::toQString;

namespace {

constexpr const char* kId = "id";

QDialogButtonBox::ButtonRole roleOf(Long button) {
  if (button == Dialog::kHelp) return QDialogButtonBox::HelpRole;
  if (button == Dialog::kOther) return QDialogButtonBox::ResetRole;
  return button == Dialog::kCancel ? QDialogButtonBox::RejectRole : QDialogButtonBox::AcceptRole;
}

}  // namespace

QtDialog::QtDialog(Dialog& dialog, QWidget& parent, DialogVisit visit)
    : QDialog(&parent),
      dialog_(dialog),
      visit_(std::move(visit)),
      form_(new QFormLayout(this)),
      box_(new QDialogButtonBox) {
  constexpr int margin = 16;
  form_->setContentsMargins(margin, margin, margin, margin);
  form_->setVerticalSpacing(margin / 2 + 2);
  setWindowTitle(toQString(dialog.title));
  for (const Field& field : dialog_.fields) widgets_.push_back(makeField(field));
  addButtons();
  writeFields();
}

QWidget* QtDialog::makeField(const Field& field) {
  QWidget* const widget = makeWidget(field);
  if (hasLabelBefore(field)) {
    form_->addRow(toQString(field.label), widget);
  } else {
    form_->addRow(widget);
  }
  // A list's row is opened with two clicks, too.
  if (auto* const list = qobject_cast<QListWidget*>(widget)) {
    connect(list, &QListWidget::itemActivated, this, [this] { press(dialog_.buttons[0].id); });
  }
  return widget;
}

void QtDialog::addButtons() {
  for (const DialogButton& button : dialog_.buttons) {
    auto* const widget = box_->addButton(toQString(button.text), roleOf(button.id));
    widget->setProperty(kId, button.id);
    widget->setDefault(box_->buttons().size() == 1);
    connect(widget, &QPushButton::clicked, this, [this, id = button.id] { press(id); });
  }
  form_->addRow(box_);
  if (!hasEntry(dialog_)) box_->buttons().front()->setFocus();
}

Long QtDialog::run() {
  dialog_.window = static_cast<tessaly::platform::WindowHandle>(winId());
  if (visit_) QTimer::singleShot(0, this, [this] { visit_(*this); });
  exec();
  dialog_.window = 0;
  return closedBy_;
}

void QtDialog::press(Long button) {
  readFields();
  const bool closes = dialog_.onButton(button);
  writeFields();
  if (!closes) return;
  closedBy_ = button;
  done(Accepted);
}

void QtDialog::reject() { press(Dialog::kCancel); }

void QtDialog::keyPressEvent(QKeyEvent* event) {
  const std::int16_t number = keyNumber(*event);
  if (number != 0) dialog_.onKey(number, shiftState(*event));
  QDialog::keyPressEvent(event);
}

void QtDialog::readFields() {
  for (std::size_t i = 0; i < widgets_.size(); ++i) read(dialog_.fields[i], *widgets_[i]);
}

void QtDialog::writeFields() {
  for (std::size_t i = 0; i < widgets_.size(); ++i) showcase::show(dialog_.fields[i], *widgets_[i]);
}

void QtDialog::write(std::size_t field, std::u16string_view text) {
  readFields();
  dialog_.fields[field].text = text;
  writeFields();
}

void QtDialog::choose(std::size_t field, Long number) {
  readFields();
  dialog_.fields[field].number = number;
  writeFields();
}

void QtDialog::click(std::size_t field) {
  QWidget& widget = *widgets_[field];
  const QPointF place(1, 1);
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
  }
}

void QtDialog::key(std::int16_t key, std::int16_t shift) { dialog_.onKey(key, shift); }

tessaly::PictureReference QtDialog::picture() { return tessaly::qt::toPicture(grab().toImage()); }

}  // namespace showcase
