#pragma once

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QTreeWidget>
#include <array>

#include "examples/showcase/window/Window.h"

namespace tessaly::qt {
class PictureButton;
}

namespace showcase {

/// The window in Qt's widgets.
class QtWindow final : public Window {
 public:
  QtWindow(int& argc, char** argv);

  void setTitle(std::u16string_view title) override;
  void setRightToLeft(bool isRightToLeft) override;
  tessaly::transparentBitmap& addButton() override;
  void addGap() override;
  void nameButton(const tessaly::transparentBitmap& button, std::u16string_view name) override;
  void setColumns(const std::array<tessaly::String, 4>& headings) override;
  void setListFont(std::u16string_view name, tessaly::Long points) override;
  void addEvent(const Event& event) override;
  void setStatus(const std::array<tessaly::String, 3>& parts) override;
  void point(const tessaly::transparentBitmap& button) override;
  void press(const tessaly::transparentBitmap& button) override;
  void hold(const tessaly::transparentBitmap& button) override;
  void release(const tessaly::transparentBitmap& button) override;
  void handleNext() override;
  tessaly::PictureReference picture() override;
  void run() override;

 private:
  tessaly::qt::PictureButton& widgetOf(const tessaly::transparentBitmap& button) const;

  QApplication application_;
  QMainWindow window_;
  QWidget* toolBar_;
  QHBoxLayout* buttons_;
  QTreeWidget* list_;
  std::array<QLabel*, 3> status_{};
};

}  // namespace showcase
