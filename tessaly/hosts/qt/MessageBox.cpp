#include "tessaly/hosts/qt/MessageBox.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <algorithm>

#include "tessaly/hosts/qt/ShownText.h"
#include "tessaly/hosts/qt/Words.h"

namespace tessaly::qt {

MessageBox::MessageBox(const BoxType& type, const QString& text, const QString& caption, QWidget* owner)
    : QMessageBox(owner), canBeLeft_(type.escape.has_value()), comesToFront_(type.comesToFront) {
  setWindowTitle(titleOf(caption));
  setIcon(type.icon);
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setText(text);
  if (type.isRightToLeft) setLayoutDirection(Qt::RightToLeft);
  addButtons(type);
  setWindowing(type, owner);
  auto* const label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (label != nullptr && type.isAlignedRight)
    label->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
  scrollLongText();
}

void MessageBox::addButtons(const BoxType& type) {
  for (const BoxButton& button : type.buttons) {
    QPushButton* const added =
        button.kind != NoButton ? addButton(button.kind) : addButton(said(button.text), AcceptRole);
    results_.emplace_back(added, button.result);
    inOrder_.push_back(added);
    if (type.escape == button.result) setEscapeButton(added);
  }
  if (type.hasHelp) addHelp();
  setDefaultButton(inOrder_.at(type.defaultButton));
}

/// Help is asked of the owner, as F1 asks it, and the box stays.
void MessageBox::addHelp() {
  auto* const help = new QPushButton(said("Help"), this);
  addButton(help, HelpRole);
  QObject::disconnect(help, &QPushButton::clicked, nullptr, nullptr);
  connect(help, &QPushButton::clicked, this, [this] {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    if (parentWidget() != nullptr) QCoreApplication::sendEvent(parentWidget(), &press);
  });
  inOrder_.push_back(help);
}

void MessageBox::setWindowing(const BoxType& type, const QWidget* owner) {
  // First, since it makes the flags anew.
  setWindowModality(type.blocksAll || owner == nullptr ? Qt::ApplicationModal : Qt::WindowModal);
  setWindowFlag(Qt::WindowStaysOnTopHint, type.isOnTop);
  if (!canBeLeft_) setWindowFlags((windowFlags() | Qt::CustomizeWindowHint) & ~Qt::WindowCloseButtonHint);
}

/// Of a very long text only a part is seen at once, so that the buttons are.
void MessageBox::scrollLongText() {
  auto* const label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  auto* const grid = qobject_cast<QGridLayout*>(layout());
  if (label == nullptr || grid == nullptr) return;
  const QSize room = screen()->availableGeometry().size();
  const int width = std::min(room.width() * 6 / 10, 640);
  label->setWordWrap(true);
  const bool fits =
      label->heightForWidth(width) < room.height() / 2 && label->minimumSizeHint().width() < room.width() / 2;
  label->setWordWrap(false);
  if (fits) return;
  label->setWordWrap(true);
  auto* const scroll = new QScrollArea(this);
  scroll->setObjectName(QStringLiteral("scroll"));
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setMinimumSize(width, room.height() / 2);
  delete grid->replaceWidget(label, scroll);
  scroll->setWidget(label);
}

Long MessageBox::result() const {
  const auto pressed = std::find_if(results_.begin(), results_.end(),
                                    [this](const auto& known) { return known.first == clickedButton(); });
  return pressed == results_.end() ? 0 : pressed->second;
}

/// Qt takes "No" for a way out, which is an answer.
void MessageBox::closeEvent(QCloseEvent* event) {
  if (canBeLeft_) {
    QMessageBox::closeEvent(event);
  } else {
    event->ignore();
  }
}

void MessageBox::keyPressEvent(QKeyEvent* event) {
  if (canBeLeft_ || !event->matches(QKeySequence::Cancel)) QMessageBox::keyPressEvent(event);
}

void MessageBox::showEvent(QShowEvent* event) {
  QMessageBox::showEvent(event);
  if (!comesToFront_) return;
  raise();
  activateWindow();
}

}  // namespace tessaly::qt
