// A second process for the contracts of messages and of shared memory. First it says its window; then it does
// what the lines of its input tell, and says one line for each. It ends with its input.

#include <cstdio>
#include <cstdlib>
#include <deque>
#include <functional>
#include <iostream>
#include <map>
#include <mutex>

#include <sstream>
#include <string>
#include <thread>

#include "tessaly/platform/Core.h"
#include "tests/contract/MessagesWorld.h"
#include "tests/support/Gate.h"

namespace tessaly::tests {
namespace {

using namespace platform;

SharedMemory& memory() { return *core().sharedMemory; }

template <class... Parts>
void say(const Parts&... parts) {
  std::ostringstream line;
  ((line << parts << ' '), ...);
  std::string text = line.str();
  text.back() = '\n';
  std::fputs(text.c_str(), stdout);
  std::fflush(stdout);
}

/// Lines that the reading thread has for the thread of the windows.
class Lines {
 public:
  void put(std::string line) {
    const std::lock_guard lock(mutex_);
    lines_.push_back(std::move(line));
  }

  std::string take() {
    const std::lock_guard lock(mutex_);
    std::string line = std::move(lines_.front());
    lines_.pop_front();
    return line;
  }

 private:
  std::mutex mutex_;
  std::deque<std::string> lines_;
};

/// A window that tells what it gets and can be held.
class Window {
 public:
  explicit Window(const std::string& title)
      : receiver_(title, [this](const SentMessage& message) { return react(message); }) {}

  WindowHandle handle() const { return receiver_.handle(); }

  void release() { released_.open(); }

 private:
  std::intptr_t react(const SentMessage& message) {
    if (message.number == hold_) {
      say("holding");
      released_.pass();
      return 1;
    }
    if (message.number == exit_) std::_Exit(3);
    if (message.number == tell_) say("got", message.number, message.wParam, message.lParam, message.sender);
    return receiver_.usual(message);
  }

  std::uint32_t tell_ = numberOf(peer_message::kTell);
  std::uint32_t hold_ = numberOf(peer_message::kHold);
  std::uint32_t exit_ = numberOf(peer_message::kExit);
  Gate released_;
  Receiver receiver_;
};

/// A block as the lines of input treat it; each says whether it went well.
class Block {
 public:
  void create(std::istream& words) {
    std::uint32_t size = 0;
    std::string name;
    words >> size >> name;
    mapping_ = memory().CreateFileMappingA(kReadWritePages | kCommittedPages, 0, size, name.c_str());
    say(mapping_ != 0);
  }

  void open(std::istream& words) {
    std::string name;
    words >> name;
    mapping_ = memory().OpenFileMappingA(kViewRead | kViewWrite, name.c_str());
    say(mapping_ != 0);
  }

  void map(std::istream& words) {
    std::size_t size = 0;
    words >> size;
    view_ = static_cast<unsigned char*>(memory().MapViewOfFile(mapping_, kViewRead | kViewWrite, size));
    say(view_ != nullptr);
  }

  void read(std::istream& words) {
    std::size_t offset = 0;
    words >> offset;
    say(static_cast<int>(view_[offset]));
  }

  void write(std::istream& words) {
    std::size_t offset = 0;
    int byte = 0;
    words >> offset >> byte;
    view_[offset] = static_cast<unsigned char>(byte);
    say(1);
  }

  void unmap(std::istream& /*words*/) const { say(memory().UnmapViewOfFile(view_)); }
  void close(std::istream& /*words*/) const { say(memory().CloseHandle(mapping_)); }

 private:
  MappingHandle mapping_ = 0;
  unsigned char* view_ = nullptr;
};

/// What the lines of input say about windows.
class Windows {
 public:
  /// "send <window> <number> <wParam> <lParam>": the result.
  static void send(std::istream& words) {
    WindowHandle window = 0;
    std::uint32_t message = 0;
    std::uintptr_t wParam = 0;
    std::intptr_t lParam = 0;
    words >> window >> message >> wParam >> lParam;
    say(messages().SendMessageA(window, message, wParam, lParam));
  }

  /// "flood <window> <number> <sender> <count>": sends that many, numbered, and says how many results were
  /// wrong.
  static void flood(std::istream& words) {
    WindowHandle window = 0;
    std::uint32_t message = 0;
    std::uintptr_t sender = 0;
    std::intptr_t count = 0;
    words >> window >> message >> sender >> count;
    int wrong = 0;
    for (std::intptr_t i = 0; i < count; ++i)
      wrong += messages().SendMessageA(window, message, sender, i) != resultOf(sender, i) ? 1 : 0;
    say(wrong);
  }

  /// "window <title>": one more, of the main thread.
  void make(std::istream& words) {
    std::string title;
    std::getline(words >> std::ws, title);
    more_.emplace_back(title);
    say(more_.back().handle());
  }

  /// "brief": a window whose thread has ended already.
  static void makeBrief(std::istream& /*words*/) {
    WindowHandle window = 0;
    std::thread([&window] {
      static const Window brief("brief");
      window = brief.handle();
    }).join();
    say(window);
  }

  static void destroy(std::istream& words) { say(messages().DestroyWindow(windowOf(words))); }
  static void post(std::istream& words) { say(messages().PostMessageA(windowOf(words), 0xC000)); }
  static void isAlive(std::istream& words) {
    say(messages().GetWindowLongA(windowOf(words), kWindowInstance) != 0);
  }

  static void registerName(std::istream& words) {
    std::string name;
    std::getline(words >> std::ws, name);
    say(numberOf(name));
  }

 private:
  static WindowHandle windowOf(std::istream& words) {
    WindowHandle window = 0;
    words >> window;
    return window;
  }

  std::deque<Window> more_;
};

class Peer {
 public:
  void run() {
    std::thread([this] { read(); }).detach();
    say(window_.handle());
    while (messages().GetMessageA() == line_) obey(lines_.take());
  }

 private:
  void read() {
    for (std::string line; std::getline(std::cin, line);) {
      if (line.ends_with('\r')) line.pop_back();
      if (line == "release") {
        window_.release();
        continue;
      }
      lines_.put(line);
      messages().PostMessageA(window_.handle(), line_);
    }
    // A test that is gone can't release it any more.
    window_.release();
    messages().PostMessageA(window_.handle(), kQuit);
  }

  void obey(const std::string& line) {
    std::istringstream words(line);
    std::string word;
    words >> word;
    commands_.at(word)(words);
  }

  using Command = std::function<void(std::istream&)>;

  Lines lines_;
  std::uint32_t line_ = numberOf("tessaly.tests.line");
  Window window_{"Tessaly test peer"};
  Windows windows_;
  Block block_;
  std::map<std::string, Command> commands_ = {
      {"register", Windows::registerName},
      {"send", Windows::send},
      {"flood", Windows::flood},
      {"window", [this](std::istream& words) { windows_.make(words); }},
      {"brief", Windows::makeBrief},
      {"destroy", Windows::destroy},
      {"post", Windows::post},
      {"alive", Windows::isAlive},
      {"create", [this](std::istream& words) { block_.create(words); }},
      {"open", [this](std::istream& words) { block_.open(words); }},
      {"map", [this](std::istream& words) { block_.map(words); }},
      {"read", [this](std::istream& words) { block_.read(words); }},
      {"write", [this](std::istream& words) { block_.write(words); }},
      {"unmap", [this](std::istream& words) { block_.unmap(words); }},
      {"close", [this](std::istream& words) { block_.close(words); }},
  };
};

/// "echo": for the tests of how programs are started.
int echo(int count, char** words) {
  std::fputs("a fault\n", stderr);
  std::fflush(stderr);
  for (int i = 2; i < count; ++i) say(words[i]);
  const char* const variable = std::getenv("TESSALY_TESTS_VARIABLE");
  say(variable != nullptr ? variable : "no variable");
  for (std::string line; std::getline(std::cin, line);) say(line);
  std::fputs("an end without a line's", stdout);
  return 7;
}

}  // namespace
}  // namespace tessaly::tests

int main(int count, char** words) {
  if (count > 1) return tessaly::tests::echo(count, words);
  tessaly::tests::Peer().run();
}
