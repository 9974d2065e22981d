#include "examples/showcase/window/Desk.h"

#include "examples/showcase/window/Names.h"
#include "tessaly/dialogs/CHelp.h"
#include "tessaly/dialogs/modMsgBoxW.h"

namespace showcase {

using tessaly::Long;
using tessaly::String;
using tessaly::platform::WindowHandle;

namespace {

/// The text of a box is written from the right, and stands there.
constexpr Long kFromRight = 0x180000;
constexpr Long kYes = 6;

}  // namespace

Long Desk::show(Long flags, const Saying& text) const {
  tell_(u"MsgBoxW", text);
  const Long direction = isWrittenFromRight(resources_.lang()) ? kFromRight : 0;
  return tessaly::MsgBoxW(text.in(resources_), flags | direction, u"");
}

bool Desk::ask(Long flags, const Saying& question) const { return show(flags, question) == kYes; }

void Desk::showHelp(WindowHandle owner, std::u16string_view page) const {
  tell_(u"ShowTopic", Saying(String(page)));
  tessaly::CHelp().ShowTopic(owner, page, u"", false, true);
}

bool Desk::helpKey(std::int16_t key, std::int16_t shift, WindowHandle owner, std::u16string_view page) const {
  if (!tessaly::CHelp().HelpKey(key, shift)) return false;
  showHelp(owner, page);
  return true;
}

Long Desk::run(Dialog& dialog, std::u16string_view page,
               const std::function<bool(Long button)>& accepts) const {
  if (dialog.buttons[0].id != Dialog::kCancel) {
    dialog.buttons.push_back({Dialog::kCancel, resources_.res(Cancel)});
  }
  dialog.buttons.push_back({Dialog::kHelp, resources_.res(HelpButton)});
  dialog.onButton = [&](Long button) {
    if (button == Dialog::kHelp) showHelp(dialog.window, page);
    return button == Dialog::kCancel || (button != Dialog::kHelp && accepts(button));
  };
  dialog.onKey = [&](std::int16_t key, std::int16_t shift) { helpKey(key, shift, dialog.window, page); };
  return window_.runDialog(dialog);
}

void Desk::tellLink(std::u16string_view address) const { tell_(u"GoToURL", Saying(String(address))); }

}  // namespace showcase
