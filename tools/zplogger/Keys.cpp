#include "tools/zplogger/Keys.h"

#include <algorithm>
#include <utility>

#include "tessaly/base/Unicode.h"

namespace tessaly::zplogger {
namespace {

constexpr char32_t kErase = 0x08;
constexpr char32_t kNewLine = 0x0A;
constexpr char32_t kReturn = 0x0D;
constexpr char32_t kEraseAll = 0x15;
constexpr char32_t kEscapeKey = 0x1B;
constexpr char32_t kDelete = 0x7F;
constexpr std::size_t kLongestText = 200;

void eraseLast(String& text) {
  if (text.empty()) return;
  const bool isPair = text.size() > 1 && unicode::isLowSurrogate(text.back());
  text.erase(text.size() - (isPair ? 2 : 1));
}

}  // namespace

bool Keys::press(char32_t key) {
  if (typed_) {
    type(key);
    return true;
  }
  if (key == U'q' || key == U'Q') return false;
  if (key == U' ') view_.pause(!view_.isPaused());
  if (key == U'+') moveLevel(1);
  if (key == U'-') moveLevel(-1);
  if (key == U'/') view_.ask(typed_.emplace());
  if (key == U'?') {
    view_.answer("keys: space pauses and goes on, + and - move the lowest level shown,");
    view_.answer("      / asks for a text that lines must have, q ends");
  }
  return true;
}

void Keys::type(char32_t key) {
  const bool isTaken = key == kReturn || key == kNewLine;
  if (isTaken || key == kEscapeKey) {
    const String text = *std::exchange(typed_, std::nullopt);
    view_.ask(std::nullopt);
    if (isTaken) setFilter(Filter(view_.filter().level(), text));
    return;
  }
  if (key == kErase || key == kDelete) {
    eraseLast(*typed_);
  } else if (key == kEraseAll) {
    typed_->clear();
  } else if (key >= U' ' && typed_->size() < kLongestText) {
    unicode::append(*typed_, key);
  }
  view_.ask(typed_);
}

void Keys::moveLevel(int by) {
  const Filter before = view_.filter();
  const int level = std::clamp(before.level() + by, 0, 255);
  setFilter(Filter(static_cast<std::uint8_t>(level), before.text()));
}

void Keys::setFilter(const Filter& filter) {
  view_.setFilter(filter);
  view_.answer("shows " + filter.inWords());
}

}  // namespace tessaly::zplogger
