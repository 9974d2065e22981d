#include "tessaly/hosts/qt/help/FindBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QTextCursor>
#include <QTextEdit>
#include <QToolButton>

#include "tessaly/hosts/qt/ShownText.h"
#include "tessaly/hosts/qt/Words.h"

namespace tessaly::qt {
namespace {

QToolButton* button(QWidget* parent, const QString& name, const char* icon, QStyle::StandardPixmap spare) {
  auto* const made = new QToolButton(parent);
  made->setIcon(QIcon::fromTheme(QLatin1String(icon), parent->style()->standardIcon(spare)));
  made->setToolTip(toolTipOf(name));
  made->setAccessibleName(name);
  made->setAutoRaise(true);
  return made;
}

}  // namespace

FindBar::FindBar(QTextEdit& page, QWidget* parent)
    : QWidget(parent), page_(page), text_(new QLineEdit(this)), result_(new QLabel(this)) {
  auto* const previous = button(this, said("Find previous"), "go-up", QStyle::SP_ArrowUp);
  auto* const next = button(this, said("Find next"), "go-down", QStyle::SP_ArrowDown);
  auto* const close = button(this, said("Close"), "window-close", QStyle::SP_TitleBarCloseButton);
  result_->setTextFormat(Qt::PlainText);
  text_->setPlaceholderText(said("Find in page"));
  text_->setAccessibleName(text_->placeholderText());
  text_->setClearButtonEnabled(true);
  text_->setMaximumWidth(320);
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(8, 4, 8, 4);
  for (QWidget* const part : std::initializer_list<QWidget*>{text_, previous, next, result_})
    layout->addWidget(part);
  layout->addStretch();
  layout->addWidget(close);
  setFocusProxy(text_);
  connect(text_, &QLineEdit::textEdited, this, &FindBar::findAsTyped);
  connect(previous, &QToolButton::clicked, this, &FindBar::findPrevious);
  connect(next, &QToolButton::clicked, this, &FindBar::findNext);
  connect(close, &QToolButton::clicked, this, &FindBar::shut);
  hide();
}

void FindBar::open() {
  show();
  text_->setFocus(Qt::ShortcutFocusReason);
  text_->selectAll();
}

void FindBar::shut() {
  hide();
  page_.setFocus();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->key() == Qt::Key_Escape) {
    shut();
  } else if (isReturn && event->modifiers().testFlag(Qt::ShiftModifier)) {
    findPrevious();
  } else if (isReturn) {
    findNext();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void FindBar::find(QTextDocument::FindFlags direction) {
  result_->clear();
  if (text_->text().isEmpty() || page_.find(text_->text(), direction)) return;
  const QTextCursor before = page_.textCursor();
  page_.moveCursor(direction.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
  if (page_.find(text_->text(), direction)) {
    result_->setText(said("Found from the page's other end"));
  } else {
    page_.setTextCursor(before);
    result_->setText(said("Not found"));
  }
}

/// What has been found grows with what is typed.
void FindBar::findAsTyped() {
  QTextCursor cursor = page_.textCursor();
  cursor.setPosition(cursor.selectionStart());
  page_.setTextCursor(cursor);
  findNext();
}

}  // namespace tessaly::qt
