#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

struct Container;
struct UserControlEvents;
class Label;
class Line;
class PictureBox;
class Timer;
class UserControl;

/// Makes the engine's objects for a control: here the engine's own. A test's toolbox may make ones that write
/// down what they are told; the names are those that the control has for them.
struct TESSALY_DESKTOP_API Toolbox {
  virtual ~Toolbox() = default;

  virtual std::unique_ptr<UserControl> makeUserControl(Container& container, UserControlEvents& control);
  virtual std::unique_ptr<PictureBox> makePictureBox(UserControl& parent, std::string_view name);
  virtual std::unique_ptr<Line> makeLine(UserControl& parent, std::string_view name);
  virtual std::unique_ptr<Label> makeLabel(UserControl& parent, std::string_view name);
  virtual std::unique_ptr<Timer> makeTimer(UserControl& parent, std::string_view name,
                                           std::function<void()> onTick);
};

}  // namespace tessaly
