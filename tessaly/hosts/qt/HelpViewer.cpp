#include "tessaly/hosts/qt/HelpViewer.h"

#include <QCoreApplication>
#include <QWidget>

#include "tessaly/hosts/qt/UserInterface.h"
#include "tessaly/hosts/qt/help/HelpAddress.h"
#include "tessaly/hosts/qt/help/HelpWindow.h"
#include "tessaly/platform/Ansi.h"

namespace tessaly::qt {

using platform::WindowHandle;
namespace command_of = platform::help_command;

HelpViewer::HelpViewer() = default;

/// A window can't go without its application, and goes with it.
HelpViewer::~HelpViewer() {
  if (QCoreApplication::instance() == nullptr) static_cast<void>(window_.release());
}

HelpWindow& HelpViewer::window() {
  if (!window_) window_ = std::make_unique<HelpWindow>();
  return *window_;
}

WindowHandle HelpViewer::HtmlHelpA(WindowHandle owner, const char* file, Long command, Long data) {
  if (!canShowWindows()) return 0;
  if (command == command_of::kCloseAll) {
    if (window_) window_->close();
    return 0;
  }
  const bool isKnown = command == command_of::kDisplayTopic || command == command_of::kDisplayContents ||
                       command == command_of::kDisplayIndex || command == command_of::kShowMapNumber;
  if (!isKnown) return 0;
  window().setOwner(widgetOf(owner));
  show(platform::fromAnsi(file == nullptr ? "" : file), command, data);
  return handleOf(*window_);
}

void HelpViewer::show(const String& text, Long command, Long data) {
  const HelpAddress address = helpAddress(text);
  switch (command) {
    case command_of::kDisplayContents:
      window().showContents(address.file, address.page);
      break;
    case command_of::kDisplayIndex:
      window().showIndex(address.file);
      break;
    case command_of::kShowMapNumber:
      window().showMapNumber(address.file, data);
      break;
    default:
      window().showTopic(address.file, address.page);
      break;
  }
}

bool HelpViewer::SetWindowPos(WindowHandle window, WindowHandle after, Long x, Long y, Long width,
                              Long height, std::uint32_t flags) {
  QWidget* const widget = canShowWindows() ? widgetOf(window) : nullptr;
  if (widget == nullptr) return false;
  if ((flags & platform::kKeepPosition) == 0) widget->move(x, y);
  if ((flags & platform::kKeepSize) == 0) widget->resize(width, height);
  placeInOrder(*widget, after);
  return true;
}

/// A window that is no viewer's is the host's, who keeps its order.
void HelpViewer::placeInOrder(QWidget& widget, WindowHandle after) {
  if (after == platform::kTopMost && &widget == window_.get()) window_->setOnTop(true);
}

}  // namespace tessaly::qt
