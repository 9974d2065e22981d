#include "tessaly/dialogs/modMsgBoxW.h"

#include "tessaly/platform/Desktop.h"

namespace tessaly {
namespace {

constexpr std::u16string_view kApplication = u"Tessaly";

}  // namespace

Long MsgBoxW(std::u16string_view prompt, Long flags, std::u16string_view title) {
  platform::MessageBoxes& boxes = *platform::desktop().messageBoxes;
  const String caption(title.empty() ? kApplication : title);
  const platform::WindowHandle owner = boxes.GetActiveWindow();
  return boxes.MessageBoxW(owner, String(prompt).c_str(), caption.c_str(), flags);
}

}  // namespace tessaly
