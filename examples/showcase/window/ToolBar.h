#pragma once

#include <vector>

#include "examples/showcase/window/Commands.h"
#include "examples/showcase/window/Report.h"
#include "examples/showcase/window/ToolPictures.h"
#include "examples/showcase/window/Window.h"

namespace showcase {

/// What stands on the tool bar, in its order, which is that of the pictures too.
enum class Tool : tessaly::Long { New, Open, Save, Print, Mail, Find, Filter, Back, On, Smaller, Larger };
inline constexpr tessaly::Long kTools = 11;

/// What a tool does.
Command commandOf(Tool tool);

/// The picture buttons, in groups.
class ToolBar {
 public:
  /// Puts the buttons into a window, which must outlive this. Raises what loading the pictures does.
  explicit ToolBar(Window& window);

  tessaly::transparentBitmap& button(Tool tool) const { return *buttons_[static_cast<std::size_t>(tool)]; }

  /// Names the buttons in the language in force, with the pictures that go with its direction.
  void speak(const tessaly::CResources& resources);

  /// Shows which of them there is something to do for, and what their overlays tell.
  void show(const Report& report, tessaly::Long timesSent);

 private:
  void addButton(Tool tool);
  void setPictures(Tool tool, Tool shown);
  void pin(Tool tool, tessaly::Long overlay);

  Window& window_;
  ToolPictures pictures_;
  std::vector<tessaly::transparentBitmap*> buttons_;
  bool isFromRight_ = false;
};

}  // namespace showcase
