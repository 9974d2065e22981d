#pragma once

#include <QMessageBox>
#include <QPointer>
#include <vector>

#include "tessaly/hosts/qt/BoxType.h"

namespace tessaly::qt {

/// One box. Its text is plain, may be selected, and scrolls where it is too much for the screen.
class MessageBox : public QMessageBox {
  Q_OBJECT

 public:
  MessageBox(const BoxType& type, const QString& text, const QString& caption, QWidget* owner);

  /// The number of the button that was pressed.
  Long result() const;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void addButtons(const BoxType& type);
  void addHelp();
  void setWindowing(const BoxType& type, const QWidget* owner);
  void scrollLongText();

  /// In the order of their type's.
  std::vector<std::pair<QAbstractButton*, Long>> results_;
  std::vector<QPushButton*> inOrder_;
  bool canBeLeft_;
  bool comesToFront_;
};

}  // namespace tessaly::qt
