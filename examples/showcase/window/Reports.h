#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "examples/showcase/window/Report.h"
#include "examples/showcase/window/ToolBar.h"

namespace showcase {

/// The tool itself: what its window shows, and what happens when its user does something. It knows of no
/// platform.
class Reports {
 public:
  /// Fills a window in the catalogue's language in force. All three must outlive this; `clock` tells the time
  /// as the list of events shows it.
  Reports(Window& window, const tessaly::CResources& resources, std::function<tessaly::String()> clock);

  tessaly::transparentBitmap& button(Tool tool) const { return toolBar_.button(tool); }
  const Report& report() const { return report_; }

  /// What has happened so far, oldest first.
  const std::vector<Event>& events() const { return events_; }

 private:
  void speak();
  void listenTo(Tool tool);
  void click(Tool tool);
  void tell(Tool tool, std::u16string_view event, tessaly::String comment);
  void showState(const tessaly::String& message);

  Window& window_;
  const tessaly::CResources& resources_;
  std::function<tessaly::String()> clock_;
  Report report_;
  ToolBar toolBar_;
  std::vector<Event> events_;
};

}  // namespace showcase
