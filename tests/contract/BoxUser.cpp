#include "tests/contract/BoxUser.h"

namespace tessaly::tests {
namespace {

using namespace platform;

/// Sees of a fake's boxes what it keeps of them; which buttons they have is not to be seen.
class UserOfFake final : public BoxUser {
 public:
  explicit UserOfFake(fake::MessageBoxes& boxes) : boxes_(boxes) {}

  void press(Long button) override {
    if (button != 0) return boxes_.press(button);
    boxes_.answer({});
  }
  const std::vector<ShownBox>& seen() const override {
    seen_.clear();
    for (const auto& box : boxes_.boxes()) seen_.push_back({box.owner, box.text, box.caption, {}, 0, 0});
    return seen_;
  }
  WindowHandle activate() override {
    boxes_.activate(7);
    return 7;
  }

 private:
  fake::MessageBoxes& boxes_;
  mutable std::vector<ShownBox> seen_;
};

}  // namespace

BoxWorld::BoxWorld(Body body) {
  if (body == Body::Fake) {
    inForce_.emplace(fake_);
    user_ = std::make_unique<UserOfFake>(fake_);
  } else {
    user_ = BoxUser::make();
  }
}

}  // namespace tessaly::tests
