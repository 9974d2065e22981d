#include "tests/controls/InputStage.h"

#include <utility>

#include "tests/controls/transparentBitmapPeer.h"

namespace tessaly::tests {
namespace {

bool runs(const Timer& timer) { return timer.Enabled() && timer.Interval() > 0; }

std::string holding(const std::vector<std::pair<std::string, bool>>& words) {
  std::string text;
  for (const auto& [word, holds] : words) {
    if (!holds || word.empty()) continue;
    text += (text.empty() ? "" : " ") + word;
  }
  return text;
}

}  // namespace

InputStage::InputStage() {
  control.withBorder(2);
  control.backcolor(0x808080);
  control.events.OnButtonClick = [this] { note("click"); };
  control.events.OnButtonSelected = [this] { note("selected"); };
  control.events.OnButtonSelectedTiming = [this] { note("rested"); };
}

void InputStage::moveOn() {
  moves_ = (moves_ + 1) % 5;
  form.movePointer({25 + moves_, 15});
}

void InputStage::slipUnderPointer() {
  form.movePointer({5, 5});
  form.moveTo({80, 90});
}

void InputStage::slipAway() { form.moveTo({1000, 1000}); }

std::string InputStage::heard() { return std::exchange(heard_, ""); }

std::string InputStage::state() const {
  using Peer = transparentBitmapPeer;
  const auto& children = Peer::children(control);
  const std::string text = holding({{"hovered", Peer::isHovered(control) != 0},
                                    {"pressed", Peer::isPressed(control) != 0},
                                    {border(), true},
                                    {"polling", runs(*children.Timer1)},
                                    {"counting", runs(*children.Timer2)},
                                    {"rested", Peer::selectedRaised(control) != 0},
                                    {"repeating", runs(*children.timerAutoClick)}});
  return text.empty() ? "idle" : text;
}

void InputStage::note(const std::string& event) { heard_ += (heard_.empty() ? "" : " ") + event; }

std::string InputStage::border() const {
  const auto& lines = transparentBitmapPeer::children(control).Line1;
  if (!lines[0]->Visible()) return "";
  return lines[0]->BorderColor() > lines[1]->BorderColor() ? "raised" : "sunken";
}

}  // namespace tessaly::tests
