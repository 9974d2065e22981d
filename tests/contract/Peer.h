#pragma once

#include <string>

#include "tessaly/platform/Messages.h"
#include "tests/support/Process.h"

namespace tessaly::tests {

/// A second process that does what it is told; peer.cpp has the words.
class Peer {
 public:
  Peer() : window_(std::stoll(hear())) {}

  Process& process() { return process_; }

  /// Its own window, which is there from its start on.
  platform::WindowHandle window() const { return window_; }

  void tell(const std::string& words) { process_.write(words + "\n"); }

  /// The next line that it says; empty when it has ended.
  std::string hear() { return process_.readLine().value_or(""); }

  std::string ask(const std::string& words) {
    tell(words);
    return hear();
  }

  std::int64_t askNumber(const std::string& words) {
    const std::string answer = ask(words);
    return answer.empty() ? 0 : std::stoll(answer);
  }

  /// Ends it wherever it stands, and waits until it is gone.
  void kill() {
    process_.kill();
    process_.wait();
  }

 private:
  Process process_{"tests-peer"};
  platform::WindowHandle window_;
};

}  // namespace tessaly::tests
