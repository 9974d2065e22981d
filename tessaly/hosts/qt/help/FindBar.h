#pragma once

#include <QTextDocument>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTextEdit;

namespace tessaly::qt {

/// Finds text in a page; hidden until it is opened, and closed by Escape.
class FindBar : public QWidget {
  Q_OBJECT

 public:
  FindBar(QTextEdit& page, QWidget* parent);

  /// Shows the bar, ready to be typed into.
  void open();

  /// Hides it and gives the keyboard to the page.
  void shut();

  void findNext() { find({}); }
  void findPrevious() { find(QTextDocument::FindBackward); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// From where the last find is, and from the page's other end where there is nothing more.
  void find(QTextDocument::FindFlags direction);
  void findAsTyped();

  QTextEdit& page_;
  QLineEdit* text_;
  QLabel* result_;
};

}  // namespace tessaly::qt
