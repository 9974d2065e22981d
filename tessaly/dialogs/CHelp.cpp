#include "tessaly/dialogs/CHelp.h"

#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/settings/CRegistry.h"

namespace tessaly {
namespace {

constexpr std::int16_t kF1 = 112;
constexpr std::uint32_t kPlaceAlone = platform::kKeepSize | platform::kKeepPosition | platform::kNoRedraw;

String libraryFolder() {
  constexpr Long localMachine = 0;
  CRegistry settings;
  settings.root(localMachine);
  settings.rootPath(u"SOFTWARE\\BRAMWELD SYSTEM\\Tessaly");
  return settings.GetString(u"Path", u"");
}

platform::WindowHandle askViewer(platform::WindowHandle owner, std::u16string_view file, Long command,
                                 Long data) {
  return platform::desktop().htmlHelp->HtmlHelpA(owner, platform::toAnsi(file).c_str(), command, data);
}

}  // namespace

CHelp::CHelp() : helpFile_(libraryFolder()) {
  const char16_t separator = platform::core().files->separator();
  if (!helpFile_.ends_with(separator)) helpFile_ += separator;
  helpFile_ += u"Tessaly.chm";
}

CHelp::~CHelp() = default;

void CHelp::ShowTopic(platform::WindowHandle owner, std::u16string_view topic, std::u16string_view anchor,
                      Boolean contents, Boolean onTop) {
  String page = helpFile_ + u"::/";
  page.append(topic).append(u".html");
  if (!anchor.empty()) page.append(u"#").append(anchor);
  const Long command =
      contents ? platform::help_command::kDisplayContents : platform::help_command::kDisplayTopic;
  const platform::WindowHandle viewer = askViewer(owner, page, command, 0);
  // Any true value is put upon the window's bits as a number, so only -1 is sure to leave some.
  if ((viewer & platform::WindowHandle{onTop}) == 0) return;
  platform::desktop().htmlHelp->SetWindowPos(viewer, platform::kTopMost, 0, 0, 0, 0, kPlaceAlone);
}

void CHelp::ShowTopicByMap(platform::WindowHandle /*window*/, Long mapNumber) {
  askViewer(0, helpFile_, platform::help_command::kShowMapNumber, mapNumber);
}

Boolean CHelp::HelpKey(std::int16_t keyCode, std::int16_t shift) const {
  return keyCode == kF1 && shift == 0;
}

void CHelp::DisplayIndex(platform::WindowHandle owner) {
  askViewer(owner, helpFile_, platform::help_command::kDisplayIndex, 0);
}

void CHelp::CloseHelp() { askViewer(0, u"0", platform::help_command::kCloseAll, 0); }

void CHelp::currentHelpPage(std::u16string_view page) { currentHelpPage_ = page; }

String CHelp::currentHelpPage() const { return currentHelpPage_; }

}  // namespace tessaly
