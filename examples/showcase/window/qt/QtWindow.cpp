#include "examples/showcase/window/qt/QtWindow.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QMouseEvent>
#include <QSplitter>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "examples/showcase/window/OpenWindow.h"
#include "examples/showcase/window/qt/Keys.h"
#include "examples/showcase/window/qt/Menus.h"
#include "examples/showcase/window/qt/Parts.h"
#include "examples/showcase/window/qt/QtDialog.h"
#include "tessaly/hosts/qt/Dialogs.h"
#include "tessaly/hosts/qt/PictureButton.h"
#include "tessaly/hosts/qt/Pictures.h"
#include "tessaly/hosts/qt/Text.h"

namespace showcase {

using tessaly::Long;
using tessaly::qt::PictureButton;
using tessaly::qt::toQString;

namespace {

constexpr QSize kSize(820, 660);
constexpr int kColumnWidth = 140;
constexpr int kGridHeight = 430;
constexpr int kEventsHeight = 120;

void sendKey(QWidget& widget, QEvent::Type type) {
  QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &event);
}

template <class Texts>
QStringList listOf(const Texts& texts) {
  QStringList list;
  for (const auto& text : texts) list << toQString(text);
  return list;
}

}  // namespace

QtWindow::QtWindow()
    : toolBar_(makeToolBar()), buttons_(makeRow(*toolBar_)), grid_(makeRows()), events_(makeRows()) {
  auto* const lists = new QSplitter(Qt::Vertical);
  lists->addWidget(grid_);
  lists->addWidget(events_);
  lists->setSizes({kGridHeight, kEventsHeight});
  auto* const inside = new QWidget;
  QVBoxLayout* const rows = makeColumn(*inside);
  rows->addWidget(toolBar_);
  rows->addWidget(makeLine(QFrame::HLine));
  rows->addWidget(lists, 1);
  setCentralWidget(inside);
  status_ = addStatus(*this);
  resize(kSize);
  grid_->header()->setSectionsClickable(true);
  connect(grid_->header(), &QHeaderView::sectionClicked, this, &QtWindow::clickHeading);
  QCoreApplication::instance()->installEventFilter(this);
}

tessaly::platform::WindowHandle QtWindow::handle() {
  return static_cast<tessaly::platform::WindowHandle>(winId());
}

void QtWindow::setTitle(std::u16string_view title) { setWindowTitle(toQString(title)); }

void QtWindow::setRightToLeft(bool isRightToLeft) {
  QApplication::setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

void QtWindow::setMenu(const std::vector<MenuItem>& menus) {
  setMenus(*menuBar(), menus, [this](Long id) { handlers.onCommand(id); });
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

void QtWindow::setGrid(const Grid& grid) {
  QStringList headings;
  for (const auto& heading : grid.headings) headings << toQString(heading.text);
  const bool isNew = grid_->topLevelItemCount() == 0;
  setHeadings(*grid_, headings);
  setGridRows(grid);
  grid_->header()->setSortIndicatorShown(grid.sortedColumn >= 0);
  // Qt's arrow points down where values go up; most users know it the other way round.
  grid_->header()->setSortIndicator(grid.sortedColumn,
                                    grid.isDescending ? Qt::AscendingOrder : Qt::DescendingOrder);
  for (int column = 0; column < headings.size(); ++column) {
    if (grid.headings[static_cast<std::size_t>(column)].isOfNumbers) {
      grid_->headerItem()->setTextAlignment(column, Qt::AlignTrailing | Qt::AlignVCenter);
    }
    if (isNew) grid_->setColumnWidth(column, kColumnWidth);
  }
}

void QtWindow::setGridRows(const Grid& grid) {
  grid_->clear();
  for (const auto& cells : grid.rows) {
    QTreeWidgetItem* const row = addRow(*grid_, listOf(cells));
    for (int column = 0; column < grid_->columnCount(); ++column) {
      if (!grid.headings[static_cast<std::size_t>(column)].isOfNumbers) continue;
      row->setTextAlignment(column, Qt::AlignTrailing | Qt::AlignVCenter);
    }
  }
  if (grid.selected >= 0) grid_->setCurrentItem(grid_->topLevelItem(grid.selected));
}

Long QtWindow::selectedRow() { return grid_->indexOfTopLevelItem(grid_->currentItem()); }

void QtWindow::setGridFont(std::u16string_view name, Long points) {
  QFont font = QApplication::font();
  if (!name.empty()) font.setFamilies({toQString(name), font.family()});
  if (points > 0) font.setPointSize(points);
  grid_->setFont(font);
}

void QtWindow::setEventHeadings(const std::array<tessaly::String, 4>& headings) {
  const bool isNew = events_->columnCount() == 1;
  setHeadings(*events_, listOf(headings));
  if (isNew) fitEvents(*events_);
}

void QtWindow::setEvents(const std::vector<Event>& events) {
  events_->clear();
  for (const Event& event : events) addEvent(event);
}

void QtWindow::addEvent(const Event& event) {
  QTreeWidgetItem* const row = addRow(*events_, listOf(event.cells));
  for (int column = 0; event.isMinor && column < events_->columnCount(); ++column) {
    row->setForeground(column, kFaint);
  }
  events_->scrollToItem(row);
}

void QtWindow::setStatus(const std::array<tessaly::String, 3>& parts) {
  for (std::size_t i = 0; i < parts.size(); ++i) status_[i]->setText(toQString(parts[i]));
}

Long QtWindow::runDialog(Dialog& dialog) {
  QtDialog shown(dialog, *this, std::exchange(visit_, nullptr));
  return shown.run();
}

// Later, since what asks for it may still be at work on the window.
void QtWindow::close() {
  QTimer::singleShot(0, this, [this] { QMainWindow::close(); });
}

void QtWindow::closeEvent(QCloseEvent* event) { event->setAccepted(!handlers.onClose || handlers.onClose()); }

bool QtWindow::eventFilter(QObject* receiver, QEvent* event) {
  const bool isOurs = event->type() == QEvent::KeyPress && handlers.onKey &&
                      (receiver == this || receiver == focusWidget()) && isActiveWindow();
  if (isOurs) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    const std::int16_t number = keyNumber(key);
    if (number != 0 && handlers.onKey(number, shiftState(key))) return true;
  }
  return QMainWindow::eventFilter(receiver, event);
}

void QtWindow::choose(Long id) { chooseItem(*menuBar(), id); }

void QtWindow::clickHeading(Long column) { handlers.onHeading(column); }

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
  grab();
  events_->scrollToBottom();
  return tessaly::qt::toPicture(grab().toImage());
}

tessaly::PictureReference QtWindow::helpPicture() {
  for (QWidget* const other : QApplication::topLevelWidgets()) {
    if (other != this && other->isVisible() && qobject_cast<QMainWindow*>(other) != nullptr) {
      return tessaly::qt::toPicture(other->grab().toImage());
    }
  }
  return nullptr;
}

void QtWindow::run() {
  show();
  setFocus();
  QApplication::exec();
}

namespace {

/// The window with the application that it needs.
struct Running {
  Running(int& argc, char** argv) : application(argc, argv) {
    setLook();
    window = std::make_unique<QtWindow>();
  }

  QApplication application;
  tessaly::qt::Dialogs dialogs;
  std::unique_ptr<QtWindow> window;
};

}  // namespace

std::shared_ptr<Window> openWindow(int& argc, char** argv, bool isToBeSeen) {
  if (!isToBeSeen) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // It says of each window anew what it doesn't do.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
  }
  const auto running = std::make_shared<Running>(argc, argv);
  return {running, running->window.get()};
}

bool drawsHelp() { return true; }

}  // namespace showcase
