#include "tessaly/hosts/qt/Boxes.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "tessaly/hosts/qt/MessageBox.h"
#include "tessaly/hosts/qt/UserInterface.h"

namespace tessaly::qt {
namespace {

QString textOf(const char16_t* text) { return text == nullptr ? QString() : QString::fromUtf16(text); }

}  // namespace

platform::WindowHandle Boxes::GetActiveWindow() {
  const QWidget* const window = canShowWindows() ? QApplication::activeWindow() : nullptr;
  return window == nullptr ? 0 : handleOf(*window);
}

Long Boxes::MessageBoxW(platform::WindowHandle owner, const char16_t* text, const char16_t* caption,
                        Long type) {
  const auto wanted = canShowWindows() ? boxType(type) : std::nullopt;
  if (!wanted) return 0;
  // It is its owner's, and goes where the owner does.
  const QPointer<MessageBox> box = new MessageBox(*wanted, textOf(text), textOf(caption), widgetOf(owner));
  box->exec();
  const Long result = box ? box->result() : 0;
  delete box;
  return result;
}

}  // namespace tessaly::qt
