#include "tools/zplogger/Console.h"

#include <array>
#include <deque>
#include <stdexcept>

#include "tessaly/base/Unicode.h"
#include "tools/zplogger/windows/Handle.h"

namespace tessaly::zplogger {
namespace {

/// What the system's own thread signals and waits for. They stay until the program ends, since that thread
/// may come at any time.
struct Ends {
  Handle asked{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
  Handle done{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
};

Ends& ends() {
  static Ends& ends = *new Ends;
  return ends;
}

/// The system ends the program when this returns, unless keys have asked.
BOOL WINAPI endAsked(DWORD why) {
  SetEvent(ends().asked.get());
  if (why != CTRL_C_EVENT && why != CTRL_BREAK_EVENT) WaitForSingleObject(ends().done.get(), INFINITE);
  return TRUE;
}

}  // namespace

struct Console::Parts {
  void readKeys();

  HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
  bool hasKeys = false;
  std::deque<char32_t> keys;
  String half;
};

/// Characters of two units come one unit after the other.
void Console::Parts::readKeys() {
  std::array<INPUT_RECORD, 64> records{};
  DWORD count = 0;
  if (ReadConsoleInputW(input, records.data(), static_cast<DWORD>(records.size()), &count) == 0) {
    hasKeys = false;
    return;
  }
  for (DWORD i = 0; i < count; ++i) {
    const KEY_EVENT_RECORD& key = records[i].Event.KeyEvent;
    if (records[i].EventType != KEY_EVENT || key.bKeyDown == 0 || key.uChar.UnicodeChar == 0) continue;
    half += static_cast<char16_t>(key.uChar.UnicodeChar);
    const auto front = unicode::frontOf(half);
    const bool isHalf = !front && half.size() == 1 && !unicode::isLowSurrogate(half[0]);
    if (front) keys.push_back(front->value);
    if (!isHalf) half.clear();
  }
}

Console::Console() : parts_(std::make_unique<Parts>()) {
  DWORD mode = 0;
  parts_->hasKeys = GetConsoleMode(parts_->input, &mode) != 0;
  if (!ends().asked.isOpen() || !ends().done.isOpen()) throw std::runtime_error("can't wait for the end");
  SetConsoleCtrlHandler(&endAsked, TRUE);
}

Console::~Console() { restore(); }

Happening Console::wait() {
  while (parts_->keys.empty()) {
    const std::array<HANDLE, 2> awaited = {ends().asked.get(), parts_->input};
    const DWORD count = parts_->hasKeys ? 2 : 1;
    if (WaitForMultipleObjects(count, awaited.data(), FALSE, INFINITE) != WAIT_OBJECT_0 + 1)
      return {Happening::Kind::End};
    parts_->readKeys();
  }
  const char32_t key = parts_->keys.front();
  parts_->keys.pop_front();
  return {Happening::Kind::Key, key};
}

void Console::end() { SetEvent(ends().asked.get()); }

void Console::restore() {
  parts_->hasKeys = false;
  SetEvent(ends().done.get());
}

}  // namespace tessaly::zplogger
