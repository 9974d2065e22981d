#include "examples/showcase/window/qt/QtWindow.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

#include "examples/showcase/window/OpenWindow.h"
#include "examples/showcase/window/qt/Parts.h"
#include "tessaly/hosts/qt/PictureButton.h"
#include "tessaly/hosts/qt/Pictures.h"
#include "tessaly/hosts/qt/Text.h"

namespace showcase {

using tessaly::qt::PictureButton;
using tessaly::qt::toQString;

namespace {

constexpr QSize kSize(780, 520);

void sendKey(QWidget& widget, QEvent::Type type) {
  QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &event);
}

}  // namespace

QtWindow::QtWindow(int& argc, char** argv) : application_(argc, argv) {
  setLook();
  auto* const inside = new QWidget;
  QVBoxLayout* const rows = makeColumn(*inside);
  toolBar_ = makeToolBar();
  buttons_ = makeRow(*toolBar_);
  list_ = makeList();
  rows->addWidget(toolBar_);
  rows->addWidget(makeLine(QFrame::HLine));
  rows->addWidget(list_, 1);
  window_.setCentralWidget(inside);
  status_ = addStatus(window_);
  window_.resize(kSize);
}

void QtWindow::setTitle(std::u16string_view title) { window_.setWindowTitle(toQString(title)); }

void QtWindow::setRightToLeft(bool isRightToLeft) {
  QApplication::setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

tessaly::transparentBitmap& QtWindow::addButton() {
  auto* const button = new PictureButton(toolBar_);
  button->setFixedSize(kButtonSide, kButtonSide);
  button->setFocusPolicy(Qt::TabFocus);
  buttons_->insertWidget(buttons_->count() - 1, button);
  return button->control();
}

void QtWindow::addGap() {
  QWidget* const line = makeLine(QFrame::VLine);
  line->setFixedSize(kGap, kButtonSide - kGap);
  buttons_->insertWidget(buttons_->count() - 1, line);
}

PictureButton& QtWindow::widgetOf(const tessaly::transparentBitmap& button) const {
  const auto all = toolBar_->findChildren<PictureButton*>();
  return **std::find_if(all.begin(), all.end(),
                        [&](const auto* widget) { return &widget->control() == &button; });
}

void QtWindow::nameButton(const tessaly::transparentBitmap& button, std::u16string_view name) {
  widgetOf(button).setToolTip(toQString(name));
  widgetOf(button).setAccessibleName(toQString(name));
}

void QtWindow::setColumns(const std::array<tessaly::String, 4>& headings) {
  QStringList labels;
  for (const auto& heading : headings) labels << toQString(heading);
  list_->setHeaderLabels(labels);
  list_->setAccessibleName(labels.join(QStringLiteral(", ")));
}

void QtWindow::setListFont(std::u16string_view name, tessaly::Long points) {
  QFont font = QApplication::font();
  if (!name.empty()) font.setFamilies({toQString(name), font.family()});
  if (points > 0) font.setPointSize(points);
  list_->setFont(font);
}

void QtWindow::addEvent(const Event& event) {
  auto* const row = new QTreeWidgetItem(list_);
  for (int column = 0; column < list_->columnCount(); ++column) {
    row->setText(column, toQString(event.cells[static_cast<std::size_t>(column)]));
    if (event.isMinor) row->setForeground(column, kFaint);
  }
  list_->scrollToItem(row);
}

void QtWindow::setStatus(const std::array<tessaly::String, 3>& parts) {
  for (std::size_t i = 0; i < parts.size(); ++i) status_[i]->setText(toQString(parts[i]));
}

void QtWindow::point(const tessaly::transparentBitmap& button) {
  PictureButton& widget = widgetOf(button);
  const QPointF middle = QRectF(widget.rect()).center();
  QMouseEvent event(QEvent::MouseMove, middle, widget.mapToGlobal(middle), Qt::NoButton, Qt::NoButton,
                    Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &event);
}

void QtWindow::press(const tessaly::transparentBitmap& button) { widgetOf(button).press(); }

void QtWindow::hold(const tessaly::transparentBitmap& button) {
  widgetOf(button).setFocus();
  sendKey(widgetOf(button), QEvent::KeyPress);
}

void QtWindow::release(const tessaly::transparentBitmap& button) {
  sendKey(widgetOf(button), QEvent::KeyRelease);
}

void QtWindow::handleNext() { QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); }

tessaly::PictureReference QtWindow::picture() {
  // The first one lays out what is then scrolled.
  window_.grab();
  list_->scrollToBottom();
  return tessaly::qt::toPicture(window_.grab().toImage());
}

void QtWindow::run() {
  window_.show();
  window_.setFocus();
  QApplication::exec();
}

std::unique_ptr<Window> openWindow(int& argc, char** argv, bool isToBeSeen) {
  if (!isToBeSeen) qputenv("QT_QPA_PLATFORM", "offscreen");
  return std::make_unique<QtWindow>(argc, argv);
}

}  // namespace showcase
