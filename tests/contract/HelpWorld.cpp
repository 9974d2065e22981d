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
  bool isOnTop() override {
    return std::any_of(help_.placed().begin(), help_.placed().end(),
                       [&](const auto& each) { return each.window == window() && each.after == kTopMost; });
  }
  bool answer(WindowHandle viewer) override {
    help_.answer(viewer);
    return true;
  }
  std::vector<HelpCall> shown() override { return help_.shown(); }

 private:
  fake::HtmlHelp& help_;
};

}  // namespace

HelpWorld::HelpWorld(Body body) {
  if (body == Body::Fake) {
    inForce_.emplace(fake_);
    viewer_ = std::make_unique<ViewerOfFake>(fake_);
  } else {
    viewer_ = RecordingViewer::make();
  }
}

}  // namespace tessaly::tests
