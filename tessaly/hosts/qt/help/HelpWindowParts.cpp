#include <QAction>
#include <QLineEdit>
#include <QSplitter>
#include <QStyle>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include "tessaly/hosts/qt/ShownText.h"
#include "tessaly/hosts/qt/Words.h"
#include "tessaly/hosts/qt/help/FindBar.h"
#include "tessaly/hosts/qt/help/GuardedSlot.h"
#include "tessaly/hosts/qt/help/HelpWindow.h"
#include "tessaly/hosts/qt/help/PageView.h"
#include "tessaly/hosts/qt/help/SitemapTree.h"

namespace tessaly::qt {
namespace {

constexpr QSize kUsualSize{940, 660};
constexpr int kUsualSide = 260;

QAction* tool(QWidget& window, const QString& name, const char* icon, QStyle::StandardPixmap spare) {
  auto* const action =
      new QAction(QIcon::fromTheme(QLatin1String(icon), window.style()->standardIcon(spare)), name, &window);
  window.addAction(action);
  return action;
}

}  // namespace

HelpWindow::HelpWindow()
    : splitter_(new QSplitter(this)),
      side_(new QTabWidget(splitter_)),
      contents_(new SitemapTree(said("Contents"), side_)),
      index_(new SitemapTree(said("Index"), side_)),
      indexPane_(new QWidget(side_)),
      page_(new PageView(shelf_, splitter_)),
      findBar_(new FindBar(*page_, this)) {
  setObjectName(QStringLiteral("tessaly-help"));
  setAttribute(Qt::WA_QuitOnClose, false);
  addSidePane();
  auto* const body = new QWidget(splitter_);
  auto* const layout = new QVBoxLayout(body);
  layout->setContentsMargins({});
  layout->setSpacing(0);
  layout->addWidget(page_);
  layout->addWidget(findBar_);
  splitter_->setStretchFactor(1, 1);
  splitter_->setSizes({kUsualSide, kUsualSize.width() - kUsualSide});
  splitter_->setChildrenCollapsible(false);
  setCentralWidget(splitter_);
  addTools();
  addKeys();
  connect(page_, &QTextBrowser::sourceChanged, this, guardedSlot(this, &HelpWindow::followSource));
  connect(page_, &PageView::outsideLinkChosen, this, guardedSlot(this, &HelpWindow::openOutside));
  resize(kUsualSize);
}

void HelpWindow::addSidePane() {
  auto* const sought = new QLineEdit(indexPane_);
  sought->setPlaceholderText(said("Look for"));
  sought->setAccessibleName(said("Look for in the index"));
  sought->setClearButtonEnabled(true);
  auto* const layout = new QVBoxLayout(indexPane_);
  layout->setContentsMargins(4, 6, 4, 0);
  layout->addWidget(sought);
  layout->addWidget(index_);
  indexPane_->setFocusProxy(sought);
  side_->setDocumentMode(true);
  side_->addTab(contents_, said("&Contents"));
  side_->addTab(indexPane_, said("&Index"));
  for (const auto* const tree : {contents_, index_}) {
    connect(tree, &SitemapTree::chosen, this, guardedSlot(this, &HelpWindow::showReference));
  }
  connect(sought, &QLineEdit::textChanged, index_, &SitemapTree::setFilter);
  connect(sought, &QLineEdit::returnPressed, index_, [this] { index_->setFocus(); });
}

void HelpWindow::addTool(QToolBar& bar, QAction* action, const QList<QKeySequence>& keys) {
  action->setShortcuts(keys);
  const QString key = keys.isEmpty() ? QString() : keys.first().toString(QKeySequence::NativeText);
  const QString tip = key.isEmpty() ? action->text() : QStringLiteral("%1 (%2)").arg(action->text(), key);
  action->setToolTip(toolTipOf(tip));
  bar.addAction(action);
}

void HelpWindow::addTools() {
  auto* const bar = addToolBar(said("Navigation"));
  bar->setObjectName(QStringLiteral("navigation"));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  setContextMenuPolicy(Qt::NoContextMenu);
  QAction* const back = tool(*this, said("Back"), "go-previous", QStyle::SP_ArrowBack);
  QAction* const forward = tool(*this, said("Forward"), "go-next", QStyle::SP_ArrowForward);
  home_ = tool(*this, said("Home"), "go-home", QStyle::SP_DirHomeIcon);
  QAction* const find = tool(*this, said("Find"), "edit-find", QStyle::SP_FileDialogContentsView);
  addTool(*bar, back, {QKeySequence(Qt::ALT | Qt::Key_Left), QKeySequence(Qt::Key_Back)});
  addTool(*bar, forward, {QKeySequence(Qt::ALT | Qt::Key_Right), QKeySequence(Qt::Key_Forward)});
  addTool(*bar, home_, {QKeySequence(Qt::ALT | Qt::Key_Home)});
  bar->addSeparator();
  addTool(*bar, find, {QKeySequence(Qt::CTRL | Qt::Key_F)});
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  connect(back, &QAction::triggered, page_, &QTextBrowser::backward);
  connect(forward, &QAction::triggered, page_, &QTextBrowser::forward);
  connect(home_, &QAction::triggered, this, guardedSlot(this, &HelpWindow::goHome));
  connect(find, &QAction::triggered, findBar_, &FindBar::open);
}

void HelpWindow::addKeys() {
  const auto add = [this](const QKeySequence& key, auto&& call) {
    auto* const action = new QAction(this);
    action->setShortcut(key);
    addAction(action);
    connect(action, &QAction::triggered, this, call);
  };
  add(Qt::Key_F3, [this] { findBar_->findNext(); });
  add(Qt::SHIFT | Qt::Key_F3, [this] { findBar_->findPrevious(); });
  add(Qt::Key_F6, [this] { switchPane(); });
  add(QKeySequence::ZoomIn, [this] { page_->zoomIn(); });
  add(QKeySequence::ZoomOut, [this] { page_->zoomOut(); });
  add(QKeySequence::Close, [this] { close(); });
}

void HelpWindow::switchPane() {
  QWidget* const other = page_->hasFocus() && side_->isVisible() ? side_->currentWidget() : page_;
  other->setFocus(Qt::ShortcutFocusReason);
}

}  // namespace tessaly::qt
