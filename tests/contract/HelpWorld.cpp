#include "tests/contract/HelpWorld.h"

#include <algorithm>

namespace tessaly::tests {
namespace {

using namespace platform;

/// Shows what a fake of the shipped kind has kept.
class ViewerOfFake final : public RecordingViewer {
 public:
  explicit ViewerOfFake(fake::HtmlHelp& help) : help_(help) {}

  WindowHandle window() override { return 0x1234; }
  bool isTopMost(WindowHandle window) override {
    return std::any_of(help_.placed().begin(), help_.placed().end(),
                       [&](const auto& each) { return each.window == window && each.after == kTopMost; });
  }
  void answer(WindowHandle viewer) override { help_.answer(viewer); }
  std::vector<HelpCall> shown() override { return help_.shown(); }

 private:
  fake::HtmlHelp& help_;
};

}  // namespace

HelpWorld::HelpWorld(Body body) {
  if (body == Body::Own) {
    viewer_ = RecordingViewer::make();
  } else {
    inForce_.emplace(fake_);
    viewer_ = std::make_unique<ViewerOfFake>(fake_);
  }
}

}  // namespace tessaly::tests
