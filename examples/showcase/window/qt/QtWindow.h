#pragma once

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QTreeWidget>
#include <array>

#include "examples/showcase/window/Window.h"
#include "examples/showcase/window/qt/Words.h"

namespace tessaly::qt {
class PictureButton;
}

namespace showcase {

/// The window in Qt's widgets.
class QtWindow final : public QMainWindow, public Window {
 public:
  QtWindow();

  tessaly::platform::WindowHandle handle() override;
  void setTitle(std::u16string_view title) override;
  void setRightToLeft(bool isRightToLeft) override;
  void setBoxWords(const BoxWords& words) override { words_.speak(words); }
  void setMenu(const std::vector<MenuItem>& menus) override;
  tessaly::transparentBitmap& addButton() override;
  void addGap() override;
  void nameButton(const tessaly::transparentBitmap& button, std::u16string_view name) override;
  void setGrid(const Grid& grid) override;
  tessaly::Long selectedRow() override;
  void setGridFont(std::u16string_view name, tessaly::Long points) override;
  void setEventHeadings(const std::array<tessaly::String, 4>& headings) override;
  void setEvents(const std::vector<Event>& events) override;
  void addEvent(const Event& event) override;
  void setStatus(const std::array<tessaly::String, 3>& parts) override;
  tessaly::Long runDialog(Dialog& dialog) override;
  void close() override;
  void choose(tessaly::Long id) override;
  void clickHeading(tessaly::Long column) override;
  void point(const tessaly::transparentBitmap& button) override;
  void press(const tessaly::transparentBitmap& button) override;
  void hold(const tessaly::transparentBitmap& button) override;
  void release(const tessaly::transparentBitmap& button) override;
  void visitNextDialog(DialogVisit visit) override { visit_ = std::move(visit); }
  void handleNext() override;
  tessaly::PictureReference picture() override;
  tessaly::PictureReference helpPicture() override;
  void run() override;

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  tessaly::qt::PictureButton& widgetOf(const tessaly::transparentBitmap& button) const;
  void setGridRows(const Grid& grid);

  QWidget* toolBar_;
  QHBoxLayout* buttons_;
  QTreeWidget* grid_;
  QTreeWidget* events_;
  std::array<QLabel*, 3> status_{};
  DialogVisit visit_;
  Words words_;
};

}  // namespace showcase
