#include "tessaly/forms/Toolbox.h"

#include "tessaly/forms/Container.h"
#include "tessaly/forms/Label.h"
#include "tessaly/forms/Line.h"
#include "tessaly/forms/PictureBox.h"
#include "tessaly/forms/Timer.h"
#include "tessaly/forms/UserControl.h"

namespace tessaly {

Toolbox& Container::toolbox() {
  static Toolbox own;
  return own;
}

std::unique_ptr<UserControl> Toolbox::makeUserControl(Container& container, UserControlEvents& control) {
  return std::make_unique<UserControl>(container, control);
}

std::unique_ptr<PictureBox> Toolbox::makePictureBox(UserControl& parent, std::string_view) {
  return std::make_unique<PictureBox>(parent);
}

std::unique_ptr<Line> Toolbox::makeLine(UserControl& parent, std::string_view) {
  return std::make_unique<Line>(parent);
}

std::unique_ptr<Label> Toolbox::makeLabel(UserControl& parent, std::string_view) {
  return std::make_unique<Label>(parent);
}

std::unique_ptr<Timer> Toolbox::makeTimer(UserControl& parent, std::string_view,
                                          std::function<void()> onTick) {
  return std::make_unique<Timer>(parent, std::move(onTick));
}

}  // namespace tessaly
