#pragma once

#include <QMainWindow>

#include "tessaly/hosts/qt/help/HelpShelf.h"

class QSplitter;
class QTabWidget;
class QToolBar;

namespace tessaly::qt {

class FindBar;
class PageView;
class SitemapTree;

/// The viewer of help files: contents and index beside a page. There is one for a program; it is no reason
/// for the program to go on, and stays usable while a dialog blocks the other windows.
class HelpWindow : public QMainWindow {
  Q_OBJECT

 public:
  HelpWindow();

  /// Shows a page of a file, empty for the one that it begins with, and the window.
  void showTopic(const String& file, const String& page);

  /// The same with the contents in view.
  void showContents(const String& file, const String& page);

  /// Shows the index, beside the page where the file begins.
  void showIndex(const String& file);

  void showMapNumber(const String& file, Long number);

  /// Keeps the window before all others, or lets it be one of them.
  void setOnTop(bool isOnTop);

  /// Before whose window it stands from now on; none for null.
  void setOwner(QWidget* owner);

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void standBefore(QWindow* window);
  void addSidePane();
  void addTools();
  void addTool(QToolBar& bar, QAction* action, const QList<QKeySequence>& keys);
  void addKeys();
  void openFile(const String& file);
  void showUrl(const QUrl& url);
  void turnTo(QWidget* pane);
  void goHome();
  void showReference(const QString& reference);
  void followSource(const QUrl& url);
  void fillSidePane();
  void showBook(int number);
  void openOutside(const QUrl& url);
  void switchPane();

  HelpShelf shelf_;
  int file_ = -1;
  QAction* home_ = nullptr;
  QSplitter* splitter_;
  QTabWidget* side_;
  SitemapTree* contents_;
  SitemapTree* index_;
  QWidget* indexPane_;
  PageView* page_;
  FindBar* findBar_;
};

}  // namespace tessaly::qt
