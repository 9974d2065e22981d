#include "examples/showcase/tests/FakeWindow.h"

namespace showcase::tests {

using tessaly::transparentBitmap;

transparentBitmap& FakeWindow::addButton() {
  const auto left = static_cast<tessaly::Long>(middles_.size()) * kButtonSide;
  auto& button = form.add<transparentBitmap>({left, 0, kButtonSide, kButtonSide});
  middles_[&button] = {left + kButtonSide / 2, kButtonSide / 2};
  return button;
}

void FakeWindow::nameButton(const transparentBitmap& button, std::u16string_view name) {
  names[&button] = name;
}

void FakeWindow::setListFont(std::u16string_view name, tessaly::Long points) {
  listFont = name;
  listFontSize = points;
}

void FakeWindow::point(const transparentBitmap& button) { form.movePointer(middles_.at(&button)); }

void FakeWindow::press(const transparentBitmap& button) {
  hold(button);
  release(button);
}

void FakeWindow::hold(const transparentBitmap& button) {
  point(button);
  form.press();
}

void FakeWindow::release(const transparentBitmap&) { form.release(); }

}  // namespace showcase::tests
