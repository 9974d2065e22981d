#include "examples/showcase/window/Unseen.h"

namespace showcase {

using tessaly::Long;
using tessaly::platform::WindowHandle;

WindowHandle RecordedHelp::HtmlHelpA(WindowHandle owner, const char* file, Long command, Long data) {
  asked_.emplace_back(file);
  return shown_ == nullptr ? 0 : shown_->HtmlHelpA(owner, file, command, data);
}

bool RecordedHelp::SetWindowPos(WindowHandle window, WindowHandle after, Long x, Long y, Long width,
                                Long height, std::uint32_t flags) {
  return shown_ != nullptr && shown_->SetWindowPos(window, after, x, y, width, height, flags);
}

}  // namespace showcase
