#pragma once

#include <memory>

#include "tessaly/platform/HtmlHelp.h"

class QWidget;

namespace tessaly::qt {

class HelpWindow;

/// The viewer of help files in one window of Qt's, which comes when it is first asked for. Without a
/// QApplication, and on any thread but that of the user interface, its calls give 0 and nothing happens.
class HelpViewer final : public platform::HtmlHelp {
 public:
  HelpViewer();
  ~HelpViewer() override;
  HelpViewer(const HelpViewer&) = delete;
  HelpViewer& operator=(const HelpViewer&) = delete;

  platform::WindowHandle HtmlHelpA(platform::WindowHandle owner, const char* file, Long command,
                                   Long data) override;
  bool SetWindowPos(platform::WindowHandle window, platform::WindowHandle after, Long x, Long y, Long width,
                    Long height, std::uint32_t flags) override;

 private:
  HelpWindow& window();
  void show(const String& text, Long command, Long data);
  void placeInOrder(QWidget& widget, platform::WindowHandle after);

  std::unique_ptr<HelpWindow> window_;
};

}  // namespace tessaly::qt
