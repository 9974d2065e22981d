#include "tessaly/hosts/qt/SystemColours.h"

#include <array>

namespace tessaly::qt {
namespace {

// From 0 on: scroll bar, desktop, active and inactive caption, menu, window, frame, and the texts on menu,
// window and caption; the borders of windows; the workspace; what is selected; the button's face, shadow,
// grey text and text; the inactive caption's text; the button's light; dark shadow, light, and the tool tip's
// text and ground; one that nobody uses; a link; the captions' second colours; the menu's selection and bar.
constexpr std::array kRoles{QPalette::Mid,
                            QPalette::Dark,
                            QPalette::Highlight,
                            QPalette::Mid,
                            QPalette::Window,
                            QPalette::Base,
                            QPalette::Shadow,
                            QPalette::WindowText,
                            QPalette::Text,
                            QPalette::HighlightedText,
                            QPalette::Window,
                            QPalette::Window,
                            QPalette::Dark,
                            QPalette::Highlight,
                            QPalette::HighlightedText,
                            QPalette::Button,
                            QPalette::Dark,
                            QPalette::Text,
                            QPalette::ButtonText,
                            QPalette::WindowText,
                            QPalette::Light,
                            QPalette::Shadow,
                            QPalette::Midlight,
                            QPalette::ToolTipText,
                            QPalette::ToolTipBase,
                            QPalette::Window,
                            QPalette::Link,
                            QPalette::Highlight,
                            QPalette::Mid,
                            QPalette::Highlight,
                            QPalette::Window};

constexpr Long kGreyText = 17;

}  // namespace

OLE_COLOR systemColour(const QPalette& palette, Long number) {
  if (number < 0 || static_cast<std::size_t>(number) >= kRoles.size()) return 0;
  const QPalette::ColorGroup group = number == kGreyText ? QPalette::Disabled : QPalette::Active;
  return colourOf(palette.color(group, kRoles[static_cast<std::size_t>(number)]).rgb() & RGB_MASK);
}

}  // namespace tessaly::qt
