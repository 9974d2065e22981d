#include "tessaly/controls/URLLinkChildren.h"

#include "tessaly/controls/HandPointer.h"
#include "tessaly/forms/Toolbox.h"

namespace tessaly {
namespace {

constexpr OLE_COLOR kBlue = 0xFF0000;
constexpr std::int16_t kCustomPointer = 99;

}  // namespace

URLLinkChildren::URLLinkChildren(Container& container, UserControlEvents& control)
    : userControl(container.toolbox().makeUserControl(container, control)),
      lblURL(container.toolbox().makeLabel(*userControl, "lblURL")) {
  userControl->ScaleMode(Scale::kTwips);
  userControl->setMouseIcon(handPointer());
  userControl->MousePointer(kCustomPointer);
  lblURL->Caption(u"Label1");
  lblURL->ForeColor(kBlue);
  lblURL->BackColor(kButtonFace);
  lblURL->font({u"MS Sans Serif", 8.25, 400, true});
  lblURL->Move(240, 120, 1395, 615);
}

}  // namespace tessaly
