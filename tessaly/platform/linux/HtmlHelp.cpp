#include "tessaly/platform/HtmlHelp.h"

#include "tessaly/platform/DesktopBodies.h"

namespace tessaly::platform {
namespace {

/// Without a toolkit nothing can be shown; a host that has one puts its own viewer in the place of this.
class NoHtmlHelp final : public HtmlHelp {
 public:
  WindowHandle HtmlHelpA(WindowHandle /*owner*/, const char* /*file*/, Long /*command*/,
                         Long /*data*/) override {
    return 0;
  }

  bool SetWindowPos(WindowHandle /*window*/, WindowHandle /*after*/, Long /*x*/, Long /*y*/, Long /*width*/,
                    Long /*height*/, std::uint32_t /*flags*/) override {
    return false;
  }
};

}  // namespace

HtmlHelp& ownHtmlHelp() {
  static NoHtmlHelp help;
  return help;
}

}  // namespace tessaly::platform
