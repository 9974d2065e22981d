#include "tessaly/platform/fake/MessageBoxes.h"

#include <algorithm>
#include <array>

namespace tessaly::platform::fake {
namespace {

constexpr Long kButtonSet = 0xF;
constexpr Long kDefaultPlace = 0xF00;
constexpr Long kPlace = 0x100;

/// The buttons of each set in their order, by the numbers of the platform: 1 OK, 2 Cancel, 3 Abort, 4 Retry,
/// 5 Ignore, 6 Yes, 7 No, 10 Try Again, 11 Continue.
constexpr std::array<std::array<Long, 3>, 7> kButtons = {
    {{1}, {1, 2}, {3, 4, 5}, {6, 7, 2}, {6, 7}, {4, 2}, {2, 10, 11}}};

/// The button that Return presses: the one that the type tells, or the first where it tells none of them.
Long defaultButton(Long type) {
  const auto set = static_cast<std::size_t>(type & kButtonSet);
  if (set >= kButtons.size()) return 0;
  const auto place = static_cast<std::size_t>((type & kDefaultPlace) / kPlace);
  const Long told = place < kButtons[set].size() ? kButtons[set][place] : 0;
  return told != 0 ? told : kButtons[set].front();
}

String textAt(const char16_t* text) { return text != nullptr ? String(text) : String(); }

}  // namespace

void MessageBoxes::press(Long button) {
  user_ = [button](const Box& /*box*/) { return button; };
}

WindowHandle MessageBoxes::GetActiveWindow() {
  calls_.emplace_back(__func__);
  return active_;
}

Long MessageBoxes::MessageBoxW(WindowHandle owner, const char16_t* text, const char16_t* caption, Long type) {
  calls_.emplace_back(__func__);
  const Box box{owner, textAt(text), textAt(caption), type};
  boxes_.push_back(box);
  const auto user = user_;
  return user ? user(box) : defaultButton(type);
}

}  // namespace tessaly::platform::fake
