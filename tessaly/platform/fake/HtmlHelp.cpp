#include "tessaly/platform/fake/HtmlHelp.h"

namespace tessaly::platform::fake {

WindowHandle HtmlHelp::HtmlHelpA(WindowHandle owner, const char* file, Long command, Long data) {
  calls_.emplace_back(__func__);
  shown_.push_back({owner, file != nullptr ? file : "", command, data});
  return viewer_;
}

bool HtmlHelp::SetWindowPos(WindowHandle window, WindowHandle after, Long x, Long y, Long width, Long height,
                            std::uint32_t flags) {
  calls_.emplace_back(__func__);
  placed_.push_back({window, after, x, y, width, height, flags});
  return !placingFails_;
}

}  // namespace tessaly::platform::fake
