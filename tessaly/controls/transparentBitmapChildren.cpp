#include "tessaly/controls/transparentBitmapChildren.h"

#include <utility>

#include "tessaly/forms/Toolbox.h"

namespace tessaly {

transparentBitmapChildren::transparentBitmapChildren(Container& container, UserControlEvents& control,
                                                     Ticks ticks)
    : userControl(container.toolbox().makeUserControl(container, control)),
      result(container.toolbox().makePictureBox(*userControl, "result")),
      Picture1(container.toolbox().makePictureBox(*userControl, "Picture1")),
      Picture2(container.toolbox().makePictureBox(*userControl, "Picture2")),
      Line1{container.toolbox().makeLine(*userControl, "Line1(0)"),
            container.toolbox().makeLine(*userControl, "Line1(1)"),
            container.toolbox().makeLine(*userControl, "Line1(2)"),
            container.toolbox().makeLine(*userControl, "Line1(3)")},
      Timer1(container.toolbox().makeTimer(*userControl, "Timer1", std::move(ticks.Timer1))),
      Timer2(container.toolbox().makeTimer(*userControl, "Timer2", std::move(ticks.Timer2))),
      timerAutoClick(
          container.toolbox().makeTimer(*userControl, "timerAutoClick", std::move(ticks.timerAutoClick))) {
  userControl->ScaleMode(Scale::kPixels);
  result->BackColor(kWindowBackground);
  result->ScaleMode(Scale::kPixels);
  Picture1->ScaleMode(Scale::kTwips);
  Picture2->ScaleMode(Scale::kTwips);
  Timer1->Enabled(True);
}

}  // namespace tessaly
