#include "tessaly/hosts/qt/help/HelpWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSplitter>
#include <QTabWidget>
#include <QWindow>

#include "tessaly/hosts/qt/ShownText.h"
#include "tessaly/hosts/qt/Text.h"
#include "tessaly/hosts/qt/help/FindBar.h"
#include "tessaly/hosts/qt/help/PageView.h"
#include "tessaly/hosts/qt/help/SitemapTree.h"
#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/Desktop.h"

namespace tessaly::qt {

void HelpWindow::showTopic(const String& file, const String& page) {
  openFile(file);
  const HelpBook* const book = shelf_.book(file_);
  const bool isHome = tidyPath(page).empty() && book != nullptr && book->home();
  showUrl(shelf_.urlOf(file_, isHome ? book->home()->page : page));
}

void HelpWindow::showContents(const String& file, const String& page) {
  showTopic(file, page);
  turnTo(contents_);
}

void HelpWindow::showIndex(const String& file) {
  showTopic(file, {});
  turnTo(indexPane_);
}

void HelpWindow::showMapNumber(const String& file, Long number) {
  openFile(file);
  showUrl(shelf_.urlOfNumber(file_, number));
}

void HelpWindow::openFile(const String& file) {
  const int number = shelf_.open(file);
  file_ = -1;
  showBook(number);
}

/// Links lead from one file to another, and what stands beside the page goes with it.
void HelpWindow::showBook(int number) {
  if (number == file_) return;
  file_ = number;
  const HelpBook* const book = shelf_.book(number);
  const QString title = book != nullptr ? toQString(book->title()).simplified() : QString();
  const QString name = QFileInfo(toQString(shelf_.path(number))).fileName();
  setWindowTitle(titleOf(title.isEmpty() ? name : title));
  home_->setEnabled(book != nullptr && book->home());
  fillSidePane();
}

void HelpWindow::fillSidePane() {
  const HelpBook* const book = shelf_.book(file_);
  contents_->setEntries(book != nullptr ? book->contents() : std::vector<SitemapEntry>());
  index_->setEntries(book != nullptr ? book->index() : std::vector<SitemapEntry>());
  const bool hasSide = contents_->topLevelItemCount() > 0 || index_->topLevelItemCount() > 0;
  side_->setVisible(hasSide);
}

void HelpWindow::showUrl(const QUrl& url) {
  if (isMinimized()) showNormal();
  // First, since where an anchor lies depends on the window's width.
  show();
  page_->showPage(url);
  page_->setFocus();
  raise();
  activateWindow();
}

void HelpWindow::turnTo(QWidget* pane) {
  side_->setCurrentWidget(pane);
  pane->setFocus();
}

void HelpWindow::goHome() {
  const HelpBook* const book = shelf_.book(file_);
  if (book != nullptr && book->home()) page_->showPage(shelf_.urlOf(file_, book->home()->page));
}

void HelpWindow::showReference(const QString& reference) {
  page_->showPage(shelf_.urlOf(file_, fromQString(reference)));
}

void HelpWindow::followSource(const QUrl& url) {
  if (!HelpShelf::isOwn(url)) return;
  showBook(HelpShelf::numberOf(url));
  contents_->showLineOf(HelpShelf::referenceOf(url));
}

void HelpWindow::openOutside(const QUrl& url) {
  const std::string target = platform::toAnsi(fromQString(url.toString(QUrl::FullyEncoded)));
  const auto owner = static_cast<platform::WindowHandle>(winId());
  platform::desktop().shell->ShellExecuteA(owner, "open", target.c_str(), nullptr, nullptr,
                                           platform::kShowNormal);
}

void HelpWindow::setOnTop(bool isOnTop) {
  if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == isOnTop) return;
  const bool isShown = isVisible();
  overrideWindowFlags(windowFlags().setFlag(Qt::WindowStaysOnTopHint, isOnTop));
  if (windowHandle() == nullptr) return;
  // Its handle stays, which a new set of flags for the widget would not let it. Window managers look at the
  // flag when a window comes.
  windowHandle()->setFlag(Qt::WindowStaysOnTopHint, isOnTop);
  if (!isShown) return;
  windowHandle()->setVisible(false);
  windowHandle()->setVisible(true);
}

void HelpWindow::setOwner(QWidget* owner) {
  QWindow* const modal = QGuiApplication::modalWindow();
  winId();
  standBefore(modal != nullptr || owner == nullptr ? modal : owner->window()->windowHandle());
}

/// Two windows that stand before each other would have Qt look for the first of them without end.
void HelpWindow::standBefore(QWindow* window) {
  QWindow* const own = windowHandle();
  if (window == own) return;
  if (window != nullptr && own->isAncestorOf(window, QWindow::IncludeTransients)) return;
  own->setTransientParent(window);
}

/// A dialog blocks all windows but those that stand before it.
bool HelpWindow::event(QEvent* event) {
  const bool isHandled = QMainWindow::event(event);
  QWindow* const modal = QGuiApplication::modalWindow();
  if (event->type() == QEvent::WindowBlocked && modal != nullptr) standBefore(modal);
  return isHandled;
}

/// The next time it comes as if it were new, but for its place and size.
void HelpWindow::closeEvent(QCloseEvent* event) {
  QMainWindow::closeEvent(event);
  findBar_->hide();
  hide();
  setOnTop(false);
  page_->clearHistory();
}

}  // namespace tessaly::qt
