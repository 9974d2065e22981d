#include "tessaly/controls/URLLink.h"

#include <new>
#include <string>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/base/Text.h"
#include "tessaly/controls/URLLinkChildren.h"
#include "tessaly/dialogs/modMsgBoxW.h"
#include "tessaly/forms/Screen.h"
#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/Desktop.h"

namespace tessaly {
namespace {

constexpr std::int16_t kUsualPointer = 0;
constexpr std::int16_t kHourglass = 11;
constexpr Long kStopSign = 0x10;

void tellFailure(std::u16string_view address, const RuntimeError& error) {
  String message = u"Unable to load '";
  message.append(address).append(u"' : ").append(fromUtf8(error.what())).append(u" (Error ");
  message.append(fromUtf8(std::to_string(error.number()))).append(u")");
  MsgBoxW(message, kStopSign, u"");
}

}  // namespace

/// The door for the surface's events, so that the control itself needs no base class.
struct URLLink::SurfaceEvents final : UserControlEvents {
  explicit SurfaceEvents(URLLink& control) : control_(&control) {}

  void InitProperties() override { control_->InitProperties(); }
  void ReadProperties(const PropertyBag& bag) override { control_->ReadProperties(bag); }
  void WriteProperties(PropertyBag& bag) override { control_->WriteProperties(bag); }
  void Resize() override { control_->Resize(); }

  // The label covers the surface, and it alone is clicked.
  void Paint() override {}
  void MouseDown(MouseState /*button*/, MouseState /*shift*/, float /*x*/, float /*y*/) override {}
  void MouseMove(MouseState /*button*/, MouseState /*shift*/, float /*x*/, float /*y*/) override {}
  void MouseUp(MouseState /*button*/, MouseState /*shift*/, float /*x*/, float /*y*/) override {}

 private:
  URLLink* control_;
};

URLLink::URLLink(Container& container)
    : surfaceEvents_(std::make_unique<SurfaceEvents>(*this)),
      children_(std::make_unique<URLLinkChildren>(container, *surfaceEvents_)) {
  children_->lblURL->onMouseDown = [this](MouseState button, MouseState shift, float x, float y) {
    lblURLMouseDown(button, shift, x, y);
  };
}

URLLink::~URLLink() = default;

void URLLink::updateToolTip() {
  children_->lblURL->ToolTipText(showToolTip_ ? std::u16string_view(url_) : std::u16string_view());
}

void URLLink::Resize() {
  Label& label = *children_->lblURL;
  label.Left(0);
  label.Top(0);
  label.Width(children_->userControl->Width());
  label.Height(children_->userControl->Height());
}

// A host that does not want the click keeps the pointer that it has set; any other press loses it. The form
// may go while the shell works or the message is shown, but not its screen.
void URLLink::lblURLMouseDown(MouseState button, MouseState /*shift*/, float /*x*/, float /*y*/) {
  const bool isClick = (button & kLeftButton) != 0;
  String address = url_;
  if (isClick && !isWanted(address)) return;
  Screen& screen = children_->userControl->container().screen();
  try {
    if (isClick) open(address, screen);
  } catch (...) {
    screen.MousePointer(kUsualPointer);
    throw;
  }
  screen.MousePointer(kUsualPointer);
}

bool URLLink::isWanted(String& address) const {
  Boolean cancel = False;
  const auto raised = events.GoToURL;
  if (raised) raised(address, cancel);
  return !cancel;
}

void URLLink::open(const String& address, Screen& screen) {
  try {
    screen.MousePointer(kHourglass);
    platform::desktop().shell->ShellExecuteA(children_->userControl->hWnd(), "open",
                                             platform::toAnsi(address).c_str(), nullptr, nullptr,
                                             platform::kShowNormal);
  } catch (const RuntimeError& error) {
    tellFailure(address, error);
  } catch (const std::bad_alloc&) {
    tellFailure(address, RuntimeError(RuntimeError::OutOfMemory));
  }
}

}  // namespace tessaly
